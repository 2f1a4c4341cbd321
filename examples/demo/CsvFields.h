#pragma once

#include <cstddef>
#include <string>

namespace Demo {

/// What a field of a CSV file says.
struct CsvField {
    enum class Kind { Nothing, Text, Bool, Number, Date, Formula };

    Kind kind = Kind::Nothing;
    /// Of a date, its day: 1 is the first of January 1900, as spreadsheets count.
    double number = 0.0;
    bool boolean = false;
    // How a number is written.
    int decimals = 0;
    bool isPercentage = false;
    std::string currency;
};

/// Understands "TRUE", "1931-03-01", "-12.50", "90%", "£3.20" and "=A2+B2"; all else is text, numbers with leading
/// zeros or of more digits than a double holds included.
CsvField readField(const std::string& text);

/// What the fields of a column have in common.
struct CsvColumn {
    void add(const CsvField& field, const std::string& text);

    bool isOfNumbers() const { return numbers != 0 && texts == 0 && dates == 0; }
    bool isOfDates() const { return dates != 0 && texts == 0 && numbers == 0; }
    bool isOfBools() const { return bools != 0 && texts == 0 && numbers == 0 && dates == 0; }

    std::size_t texts = 0;
    std::size_t bools = 0;
    std::size_t numbers = 0;
    std::size_t dates = 0;
    std::size_t formulas = 0;
    int decimals = 0;
    bool isPercentage = false;
    std::string currency;
    /// In characters.
    std::size_t width = 0;
};

} // namespace Demo
