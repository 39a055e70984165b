// Tables of a test, kept beside it as text: "[NAME]" heads the rows below it, fields are parted by
// "|", and the last one is what has to come out. "\s" is a blank, "\p" a "|", and "\r", "\n", "\t",
// "\0" and "\xHH" what they are in C++. "table NAME | TEXT" is of the same form and for the test to
// use. "#" begins a comment.
#pragma once

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <vector>

struct table_row {
    std::string place; // "file:line"
    std::string heading;
    std::vector<std::string> fields;
};

inline std::string unescaped(std::string_view written) {
    constexpr std::string_view LETTERS = "srntp0\\", MEANT("\x20\r\n\t|\0\\", 7);
    std::string text;
    for (std::size_t i = 0; i < written.size(); ++i) {
        if (written[i] != '\\') {
            text += written[i];
        } else if (written[++i] == 'x') {
            text +=
                static_cast<char>(std::stoi(std::string(written.substr(i + 1, 2)), nullptr, 16));
            i += 2;
        } else {
            text += MEANT.at(LETTERS.find(written[i]));
        }
    }
    return text;
}

inline std::string plain_field(std::string_view written) {
    const std::size_t begin = std::min(written.find_first_not_of(' '), written.size());
    return unescaped(written.substr(begin, written.find_last_not_of(' ') + 1 - begin));
}

inline std::vector<table_row> read_rows(const std::filesystem::path& path) {
    std::vector<table_row> rows;
    std::ifstream file(path);
    std::string line, heading;
    for (int number = 1; std::getline(file, line); ++number) {
        if (line.empty() || line.starts_with("# "))
            continue;
        if (line.starts_with("[") && line.ends_with("]")) {
            heading = line.substr(1, line.size() - 2);
            continue;
        }
        const bool table = line.starts_with("table ");
        table_row row{
            path.filename().string() + ":" + std::to_string(number), table ? "table" : heading, {}};
        for (std::size_t at = table ? 6 : 0, end = 0; end != line.npos; at = end + 1) {
            end = line.find('|', at);
            row.fields.push_back(plain_field(std::string_view(line).substr(at, end - at)));
        }
        rows.push_back(std::move(row));
    }
    EXPECT_FALSE(rows.empty()) << path;
    return rows;
}

// The files of a folder that end so, without that: for INSTANTIATE_TEST_SUITE_P.
inline std::vector<std::string> files_in(const std::string& folder, const char* ending) {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        if (entry.path().extension() == ending)
            names.push_back(entry.path().stem().string());
    return names;
}

// Numbers as rows have them, to ten digits; several are parted by ",".
inline std::string numbers_text(const std::vector<double>& numbers) {
    std::string text;
    for (const double number : numbers) {
        char room[32];
        std::snprintf(room, sizeof room, "%.10g", number + 0.0);
        text.append(text.empty() ? "" : ",").append(room);
    }
    return text;
}
inline std::vector<double> numbers_in(const std::string& text) {
    std::vector<double> numbers;
    for (std::size_t at = 0, end = 0; end != text.npos; at = end + 1) {
        end = text.find(',', at);
        const std::string number = text.substr(at, end - at);
        const std::size_t over = number.find('/'); // "100/255"
        numbers.push_back(std::stod(number) /
                          (over == number.npos ? 1 : std::stod(number.substr(over + 1))));
    }
    return numbers;
}

// A heading and what its operation makes of a row's fields. "[A, B]" heads rows whose last two
// fields are what A and B have to give; "*" is whatever they do.
template <class context>
using row_operations =
    std::map<std::string, std::string (*)(const std::vector<std::string>&, context)>;

template <class context>
void expect_row(const row_operations<context>& operations, const table_row& row, context on) {
    std::vector<std::string> names;
    for (std::size_t at = 0, end = 0; end != row.heading.npos; at = end + 2) {
        end = row.heading.find(", ", at);
        names.push_back(row.heading.substr(at, end - at));
    }
    ASSERT_GE(row.fields.size(), names.size()) << row.place;
    for (std::size_t i = 0; i < names.size(); ++i) {
        const auto found = operations.find(names[i]);
        ASSERT_NE(found, operations.end()) << row.place << ": " << names[i];
        const std::string& expected = row.fields[row.fields.size() - names.size() + i];
        if (expected == "*")
            continue;
        EXPECT_EQ(found->second(row.fields, on), expected) << row.place << ": " << names[i];
    }
}
