#include "Text.h"

#include <array>
#include <charconv>
#include <cstdint>

namespace Demo {

std::string toFixed(double value, int decimals)
{
    std::array<char, 400> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                      std::chars_format::fixed, decimals);
    std::string text(buffer.data(), result.ptr);
    // Not "-0.0" for what is rounded to nothing.
    return text.find_first_not_of("-0.") == text.npos && text.starts_with('-') ? text.substr(1) : text;
}

std::string toColumnName(QN::ColumnIndex column)
{
    constexpr std::uint64_t Letters = 26;
    std::string name;
    for (std::uint64_t rest = column.get() + 1; rest != 0; rest = (rest - 1) / Letters) {
        name.insert(name.begin(), static_cast<char>('A' + (rest - 1) % Letters));
    }
    return name;
}

std::string escapeHtml(std::string_view text)
{
    std::string escaped;
    for (const char c : text) {
        switch (c) {
        case '&':
            escaped += "&amp;";
            break;
        case '<':
            escaped += "&lt;";
            break;
        case '>':
            escaped += "&gt;";
            break;
        case '"':
            escaped += "&quot;";
            break;
        default:
            if (static_cast<unsigned char>(c) >= 0x20 || c == '\t') {
                escaped += c;
            }
        }
    }
    return escaped;
}

std::string toBase64(std::string_view bytes)
{
    constexpr std::string_view Digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text;
    while (!bytes.empty()) {
        const std::string_view group = bytes.substr(0, 3);
        std::uint32_t bits = 0;
        for (std::size_t i = 0; i < 3; ++i) {
            bits = bits << 8U | (i < group.size() ? static_cast<unsigned char>(group[i]) : 0U);
        }
        for (std::size_t i = 0; i < 4; ++i) {
            text += i <= group.size() ? Digits[bits >> (18U - 6U * i) & 63U] : '=';
        }
        bytes.remove_prefix(group.size());
    }
    return text;
}

} // namespace Demo
