#include "support/RealData.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <sstream>

namespace ZeltNavMsg::Testing {

namespace {

std::vector<std::string> splitTabs(const std::string& line) {
    std::vector<std::string> cells;
    std::stringstream in(line);
    for (std::string cell; std::getline(in, cell, '\t');) {
        cells.push_back(cell);
    }
    return cells;
}

std::string trim(std::string_view s) {
    const auto first = s.find_first_not_of(' ');
    if (first == std::string_view::npos) {
        return {};
    }
    const auto last = s.find_last_not_of(' ');
    return std::string(s.substr(first, last - first + 1));
}

}  // namespace

std::optional<double> RealMessage::number(const std::string& field) const {
    const auto it = truth.find(field);
    if (it == truth.end()) {
        return std::nullopt;
    }
    return std::stod(it->second);
}

std::vector<RealMessage> loadRealData(std::string_view fileName) {
    const std::string path =
        std::string(ZELTNAVMSG_TEST_DATA_DIR) + "/real-data/" + std::string(fileName);
    std::ifstream file(path);
    EXPECT_TRUE(file.good()) << "cannot read " << path;
    std::vector<RealMessage> messages;
    int lineNumber = 0;
    for (std::string line; std::getline(file, line);) {
        ++lineNumber;
        if (line.empty() || line.front() == '#') {
            continue;
        }
        const std::vector<std::string> cells = splitTabs(line);
        if (cells.size() < 5) {
            ADD_FAILURE() << path << ":" << lineNumber << ": too few columns";
            continue;
        }
        RealMessage m;
        m.lineNumber = lineNumber;
        m.where = std::string(fileName) + ":" + std::to_string(lineNumber);
        m.format = cells[0];
        m.satellite = cells[1];
        m.subframe = std::stoi(cells[2]);
        m.page = std::stoi(cells[3]);
        m.hex = cells[4];
        for (std::size_t i = 5; i < cells.size(); ++i) {
            const auto eq = cells[i].find('=');
            if (eq != std::string::npos) {
                m.truth[cells[i].substr(0, eq)] = cells[i].substr(eq + 1);
            }
        }
        messages.push_back(std::move(m));
    }
    return messages;
}

bool sameToSixDigits(double printed, double truth) {
    const double magnitude = std::max(std::fabs(printed), std::fabs(truth));
    if (magnitude == 0.0) {
        return true;
    }
    const double unit = std::pow(10.0, std::floor(std::log10(magnitude)) - 5);
    return std::fabs(printed - truth) <= 0.5 * unit * 1.0001;
}

std::multimap<std::string, LegacyLine> parseLegacyListing(std::string_view text) {
    std::multimap<std::string, LegacyLine> lines;
    for (const std::string& line : splitLines(text)) {
        const auto colon = line.find(':');
        if (colon == std::string::npos || line.starts_with("Subframe:")) {
            continue;
        }
        LegacyLine parsed;
        std::string rest = line.substr(colon + 1);
        std::stringstream words(rest);
        std::string word;
        words >> word;
        if (word.starts_with("0x")) {
            parsed.hex = word.substr(2);
            word.clear();
            words >> word;
        }
        parsed.value = word;
        std::getline(words, parsed.units);
        parsed.units = trim(parsed.units);
        lines.emplace(trim(line.substr(0, colon)), parsed);
    }
    return lines;
}

std::optional<LegacyLine> onlyLine(const std::multimap<std::string, LegacyLine>& lines,
                                   const std::string& name) {
    const auto count = lines.count(name);
    if (count != 1) {
        ADD_FAILURE() << "expected one line '" << name << "', found " << count;
        return std::nullopt;
    }
    return lines.find(name)->second;
}

ExpectedListing loadExpectedListing(std::string_view relativePath) {
    const std::string path =
        std::string(ZELTNAVMSG_TEST_DATA_DIR) + "/listings/" + std::string(relativePath);
    std::ifstream file(path);
    EXPECT_TRUE(file.good()) << "cannot read " << path;
    ExpectedListing listing;
    std::getline(file, listing.hex);
    for (std::string line; std::getline(file, line);) {
        listing.lines.push_back(line);
    }
    return listing;
}

std::vector<std::string> splitLines(std::string_view text) {
    std::vector<std::string> lines;
    std::size_t start = 0;
    while (start <= text.size()) {
        const auto end = text.find("\r\n", start);
        if (end == std::string_view::npos) {
            if (start < text.size()) {
                lines.emplace_back(text.substr(start));
            }
            break;
        }
        lines.emplace_back(text.substr(start, end - start));
        start = end + 2;
    }
    return lines;
}

}  // namespace ZeltNavMsg::Testing
