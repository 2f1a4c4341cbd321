#include "Csv.h"

#include <algorithm>
#include <utility>

namespace Demo {

namespace {

class CsvReader {
public:
    explicit CsvReader(std::string_view text) : _rest(text)
    {
        constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
        if (_rest.starts_with(ByteOrderMark)) {
            _rest.remove_prefix(ByteOrderMark.size());
        }
    }

    std::vector<CsvRecord> read()
    {
        while (!_rest.empty()) {
            readField();
            if (takeIf(',')) {
                _isBehindComma = true;
            } else {
                takeLineEnd();
                endRecord();
            }
        }
        if (_isBehindComma) {
            _record.emplace_back();
            endRecord();
        }
        return std::move(_records);
    }

private:
    void readField()
    {
        _isBehindComma = false;
        _record.push_back(takeIf('"') ? takeQuoted() : std::string());
        // Also text behind a closing quote: not in the standard, and kept.
        const std::size_t end = std::min(_rest.find_first_of(",\r\n"), _rest.size());
        _record.back() += _rest.substr(0, end);
        _rest.remove_prefix(end);
    }

    std::string takeQuoted()
    {
        std::string field;
        while (!_rest.empty()) {
            const std::size_t end = std::min(_rest.find('"'), _rest.size());
            field += _rest.substr(0, end);
            _rest.remove_prefix(end);
            takeIf('"');
            if (!takeIf('"')) {
                break;
            }
            field += '"';
        }
        return field;
    }

    void takeLineEnd()
    {
        takeIf('\r');
        takeIf('\n');
    }

    void endRecord()
    {
        if (_record.size() > 1 || !_record.front().empty()) {
            _records.push_back(std::move(_record));
        }
        _record.clear();
    }

    bool takeIf(char c)
    {
        const bool isThere = _rest.starts_with(c);
        _rest.remove_prefix(isThere ? 1 : 0);
        return isThere;
    }

    std::string_view _rest;
    bool _isBehindComma = false;
    CsvRecord _record;
    std::vector<CsvRecord> _records;
};

} // namespace

std::vector<CsvRecord> readCsv(std::string_view text)
{
    return CsvReader(text).read();
}

} // namespace Demo
