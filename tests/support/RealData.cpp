#include "support/RealData.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <sstream>

namespace ZeltNavMsg::Testing {

namespace {

std::ifstream openData(std::string_view path) {
    std::ifstream file(std::string(ZELTNAVMSG_TEST_DATA_DIR) + "/" + std::string(path));
    EXPECT_TRUE(file.good()) << "cannot read " << path;
    return file;
}

}  // namespace

std::vector<DataRow> loadTable(std::string_view relativePath) {
    std::ifstream file = openData(relativePath);
    std::vector<DataRow> rows;
    int lineNumber = 0;
    for (std::string line; std::getline(file, line);) {
        ++lineNumber;
        if (line.empty() || line.front() == '#') {
            continue;
        }
        DataRow row{{}, std::string(relativePath) + ":" + std::to_string(lineNumber)};
        std::stringstream in(line);
        for (std::string cell; std::getline(in, cell, '\t');) {
            row.cells.push_back(cell);
        }
        rows.push_back(std::move(row));
    }
    return rows;
}

std::vector<RealMessage> loadRealData(std::string_view fileName) {
    std::vector<RealMessage> messages;
    for (const DataRow& row : loadTable("real-data/" + std::string(fileName))) {
        const auto& cells = row.cells;
        if (cells.size() < 5) {
            ADD_FAILURE() << row.where << ": too few columns";
            continue;
        }
        RealMessage m{cells[0], cells[1], std::stoi(cells[2]), std::stoi(cells[3]), cells[4],
                      {},       row.where};
        for (std::size_t i = 5; i < cells.size(); ++i) {
            const auto eq = cells[i].find('=');
            m.truth[cells[i].substr(0, eq)] = cells[i].substr(eq + 1);
        }
        messages.push_back(std::move(m));
    }
    return messages;
}

Listing parseListing(std::string_view text) {
    Listing lines;
    std::vector<std::string> headings;
    for (const std::string& line : splitLines(text)) {
        const std::size_t level = line.find_first_not_of('\t');
        if (level == std::string::npos || line.starts_with("Subframe:")) {
            continue;
        }
        const std::string body = line.substr(level);
        const auto colon = body.find(':');
        headings.resize(level);
        if (colon == std::string::npos) {
            headings.push_back(body);
            continue;
        }
        std::string key;
        for (std::size_t i = 1; i < headings.size(); ++i) {  // the frame's own name is left out
            key += headings[i] + "/";
        }
        key += body.substr(body.find_first_not_of(' '), colon - body.find_first_not_of(' '));
        ListedValue parsed;
        std::string rest = body.substr(colon + 1);
        if (const auto at = rest.find(", Raw hex:"); at != std::string::npos) {
            parsed.hex = rest.substr(at + 10);
            rest.resize(at);
        }
        std::istringstream words(rest);
        words >> parsed.value;
        if (parsed.value.starts_with("0x")) {
            parsed.hex = parsed.value.substr(2);
            parsed.value.clear();
            words >> parsed.value;
        }
        lines.emplace(key, parsed);
    }
    return lines;
}

std::map<std::string, std::string> namePairs(std::string_view words, const std::string& prefix) {
    std::map<std::string, std::string> pairs;
    std::istringstream in{std::string(words)};
    for (std::string key, name; in >> key >> name;) {
        pairs[key] = prefix + name;
    }
    return pairs;
}

const ListedValue* onlyLine(const Listing& lines, const std::string& key,
                            const std::string& where) {
    if (lines.count(key) != 1) {
        ADD_FAILURE() << where << ": expected one line " << key << ", found " << lines.count(key);
        return nullptr;
    }
    return &lines.find(key)->second;
}

void expectValue(const Listing& lines, const std::string& key, double truth,
                 const std::string& where) {
    if (const ListedValue* line = onlyLine(lines, key, where)) {
        const double printed = std::stod(line->value);
        const double magnitude = std::max(std::fabs(printed), std::fabs(truth));
        const double unit = std::pow(10.0, std::floor(std::log10(magnitude)) - 5);
        EXPECT_TRUE(magnitude == 0.0 || std::fabs(printed - truth) <= 0.5 * unit * 1.0001)
            << where << " " << key << ": printed " << line->value << ", truth " << truth;
    }
}

void expectInteger(const Listing& lines, const std::string& key, long long truth,
                   const std::string& where) {
    if (const ListedValue* line = onlyLine(lines, key, where)) {
        EXPECT_EQ(line->value, std::to_string(truth)) << where << " " << key;
    }
}

ExpectedListing loadExpectedListing(std::string_view relativePath) {
    std::ifstream file = openData("listings/" + std::string(relativePath));
    ExpectedListing listing;
    std::getline(file, listing.hex);
    for (std::string line; std::getline(file, line);) {
        listing.lines.push_back(line);
    }
    return listing;
}

std::vector<std::string> splitLines(std::string_view text) {
    std::vector<std::string> lines;
    for (std::size_t start = 0; start < text.size();) {
        const auto end = std::min(text.find("\r\n", start), text.size());
        lines.emplace_back(text.substr(start, end - start));
        start = end + 2;
    }
    return lines;
}

void expectSameLines(const std::vector<std::string>& got,
                     const std::vector<std::string>& expected) {
    for (std::size_t i = 0; i < std::min(got.size(), expected.size()); ++i) {
        ASSERT_EQ(got[i], expected[i]) << "line " << i + 1;
    }
    EXPECT_EQ(got.size(), expected.size());
}

}  // namespace ZeltNavMsg::Testing
