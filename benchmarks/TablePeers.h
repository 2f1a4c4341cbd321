#pragma once

#include <absl/container/flat_hash_map.h>

#include <cstdint>
#include <iterator>
#include <map>
#include <utility>
#include <vector>

#ifdef DOM_BENCH_MDDS
#include <mdds/multi_type_vector.hpp>
#include <mdds/multi_type_vector/collection.hpp>
#include <mdds/multi_type_vector_trait.hpp>
#endif

/// What a sheet of numbers could be made of instead. Each has what it does by nature: a map has no rows to insert.

namespace Peers {

struct Place {
    std::uint32_t row;
    std::uint32_t column;
};

/// Ordered by row, then by column.
class Map {
public:
    Map(std::uint32_t /*rows*/, std::uint32_t /*columns*/) {}

    void set(const Place& place, double value) { _cells[{place.row, place.column}] = value; }
    double get(const Place& place) const
    {
        const auto cell = _cells.find({place.row, place.column});
        return cell == _cells.end() ? 0.0 : cell->second;
    }
    double walk() const
    {
        double sum = 0;
        for (const auto& [place, value] : _cells) {
            sum += value;
        }
        return sum;
    }
    friend bool operator==(const Map&, const Map&) = default;

private:
    std::map<std::pair<std::uint32_t, std::uint32_t>, double> _cells;
};

class HashMap {
public:
    HashMap(std::uint32_t /*rows*/, std::uint32_t /*columns*/) {}

    void set(const Place& place, double value) { _cells[{place.row, place.column}] = value; }
    double get(const Place& place) const
    {
        const auto cell = _cells.find({place.row, place.column});
        return cell == _cells.end() ? 0.0 : cell->second;
    }
    /// In no order.
    double walk() const
    {
        double sum = 0;
        for (const auto& [place, value] : _cells) {
            sum += value;
        }
        return sum;
    }
    friend bool operator==(const HashMap& left, const HashMap& right) { return left._cells == right._cells; }

private:
    absl::flat_hash_map<std::pair<std::uint32_t, std::uint32_t>, double> _cells;
};

#ifdef DOM_BENCH_MDDS
/// One vector of runs for each column.
class Columns {
public:
    Columns(std::uint32_t rows, std::uint32_t columns) : _rows(rows)
    {
        for (std::uint32_t column = 0; column < columns; ++column) {
            _columns.emplace_back(rows);
        }
    }

    void set(const Place& place, double value) { _columns[place.column].set(place.row, value); }
    double get(const Place& place) const
    {
        const Column& column = _columns[place.column];
        const auto position = column.position(place.row);
        return position.first->type == mdds::mtv::element_type_double
                   ? Values::at(*position.first->data, position.second)
                   : 0.0;
    }
    /// Row by row, empty places included.
    double walkRows() const
    {
        const mdds::mtv::collection<Column> rows(_columns.begin(), _columns.end());
        double sum = 0;
        for (const auto& cell : rows) {
            sum += cell.type == mdds::mtv::element_type_double ? cell.template get<Values>() : 0.0;
        }
        return sum;
    }
    /// Column by column, empty runs passed over.
    double walkColumns() const
    {
        double sum = 0;
        for (const Column& column : _columns) {
            for (const auto& block : column) {
                if (block.type == mdds::mtv::element_type_double) {
                    for (auto value = Values::begin(*block.data); value != Values::end(*block.data);
                         ++value) {
                        sum += *value;
                    }
                }
            }
        }
        return sum;
    }
    void insertRow(std::uint32_t at)
    {
        for (Column& column : _columns) {
            column.insert_empty(at, 1);
        }
        ++_rows;
    }
    void removeRow(std::uint32_t at)
    {
        for (Column& column : _columns) {
            column.erase(at, at);
        }
        --_rows;
    }
    void insertColumn(std::uint32_t at) { _columns.emplace(_columns.begin() + at, _rows); }
    void removeColumn(std::uint32_t at) { _columns.erase(_columns.begin() + at); }
    friend bool operator==(const Columns& left, const Columns& right)
    {
        return left._columns == right._columns;
    }

private:
    using Column = mdds::multi_type_vector<mdds::mtv::element_block_func>;
    using Values = mdds::mtv::double_element_block;

    std::uint32_t _rows;
    std::vector<Column> _columns;
};
#endif

} // namespace Peers
