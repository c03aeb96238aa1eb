#pragma once
// The rows of a plain table file beside the tests: each line's words, split at blanks, where a
// quoted text is one word ("" an empty one); blank lines and lines starting with '#' are left out.
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

using Words = std::vector<std::string>;

inline std::vector<Words> ReadRows(const std::string& path)
{
    std::ifstream file(path);
    EXPECT_TRUE(file) << path;
    std::vector<Words> rows;
    for (std::string line; std::getline(file, line);) {
        Words row;
        for (auto i = line.find_first_not_of(" \t"); i != std::string::npos; i = line.find_first_not_of(" \t", i)) {
            const bool quoted = line[i] == '"';
            const auto end = quoted ? line.find('"', i + 1) : line.find_first_of(" \t", i);
            row.push_back(line.substr(i + quoted, end - i - quoted));
            i = end == std::string::npos ? end : end + quoted;
        }
        if (!row.empty() && row[0][0] != '#')
            rows.push_back(row);
    }
    return rows;
}

// "a|b" split at '|' into its parts; "" has none.
inline Words Split(const std::string& text, char at)
{
    Words parts;
    std::istringstream in(text);
    for (std::string part; std::getline(in, part, at);)
        parts.push_back(part);
    return parts;
}
