#include "support/TreeChecks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <vector>

#include "support/RealData.h"

namespace ZeltNavMsg::Testing {

namespace {

std::vector<int> coverage(const BitStructDef& def, const std::vector<const BitFieldDef*>& members) {
    const int base = def.ranges().front().firstBitIndex();
    std::vector<int> count(static_cast<std::size_t>(def.totalBitsCount()), 0);
    for (const BitFieldDef* m : members) {
        for (const BitRange& r : m->ranges()) {
            for (int i = r.firstBitIndex(); i <= r.lastBitIndex(); ++i) {
                const int at = i - base;
                if (at < 0 || at >= def.totalBitsCount()) {
                    ADD_FAILURE() << "'" << m->name() << "' reaches outside its structure at bit "
                                  << i;
                    continue;
                }
                ++count[static_cast<std::size_t>(at)];
            }
        }
    }
    return count;
}

void expectOnce(const std::vector<int>& count, const std::string& what) {
    for (std::size_t i = 0; i < count.size(); ++i) {
        if (count[i] != 1) {
            ADD_FAILURE() << what << ": relative bit " << i << " is covered " << count[i]
                          << " times";
            return;
        }
    }
}

}  // namespace

void expectTiled(const BitStructDef& def, const std::string& path) {
    const std::string here = path.empty() ? def.name() : path + "/" + def.name();
    ASSERT_EQ(def.ranges().size(), 1U) << here;
    std::vector<const BitFieldDef*> always;
    std::set<int> containers;
    for (const BitFieldDef* child : def.children()) {
        if (child->containerId() < 0) {
            always.push_back(child);
        } else {
            containers.insert(child->containerId());
        }
        if (child->isStruct()) {
            expectTiled(static_cast<const BitStructDef&>(*child), here);
        }
    }
    if (containers.empty()) {
        expectOnce(coverage(def, always), here);
        return;
    }
    for (const int c : containers) {
        std::vector<const BitFieldDef*> variant;
        for (const BitFieldDef* child : def.children()) {
            if (child->containerId() == c) {
                variant.push_back(child);
            }
        }
        const std::vector<int> variantBits = coverage(def, variant);
        std::vector<const BitFieldDef*> members;
        for (const BitFieldDef* m : always) {
            const bool placeholder = m->hasFlag(Hidden) && coverage(def, {m}) == variantBits;
            if (!placeholder) {
                members.push_back(m);
            }
        }
        members.insert(members.end(), variant.begin(), variant.end());
        expectOnce(coverage(def, members), here + " variant " + std::to_string(c));
    }
}

std::multimap<std::string, TreeLine> parseTreeListing(std::string_view text) {
    std::multimap<std::string, TreeLine> lines;
    std::vector<std::string> headings;
    std::string all(text);
    // Accept both line ends: the facade's "\r\n" and the internal "\n".
    std::vector<std::string> rawLines;
    std::size_t start = 0;
    while (start <= all.size()) {
        std::size_t end = all.find('\n', start);
        if (end == std::string::npos) {
            end = all.size();
        }
        std::string line = all.substr(start, end - start);
        if (!line.empty() && line.back() == '\r') {
            line.pop_back();
        }
        rawLines.push_back(line);
        start = end + 1;
    }
    for (const std::string& line : rawLines) {
        std::size_t level = 0;
        while (level < line.size() && line[level] == '\t') {
            ++level;
        }
        const std::string body = line.substr(level);
        if (body.empty()) {
            continue;
        }
        headings.resize(level);
        const auto colon = body.find(": ");
        if (colon == std::string::npos && !body.ends_with(":")) {
            headings.push_back(body);
            continue;
        }
        std::string path;
        for (std::size_t i = 1; i < headings.size(); ++i) {  // the frame's own name is left out
            path += headings[i] + "/";
        }
        path += body.substr(0, colon);
        TreeLine parsed;
        std::string rest = colon == std::string::npos ? "" : body.substr(colon + 2);
        const auto hexAt = rest.find(", Raw hex:");
        if (hexAt != std::string::npos) {
            parsed.rawHex = rest.substr(hexAt + 10);
            rest = rest.substr(0, hexAt);
        }
        const auto blank = rest.find(' ');
        parsed.value = rest.substr(0, blank);
        parsed.units = blank == std::string::npos ? "" : rest.substr(blank + 1);
        lines.emplace(path, parsed);
    }
    return lines;
}

void expectTreeValue(const std::multimap<std::string, TreeLine>& lines, const std::string& path,
                     double truth, const std::string& where) {
    if (lines.count(path) != 1) {
        ADD_FAILURE() << where << ": expected one line " << path << ", found " << lines.count(path);
        return;
    }
    const std::string& printed = lines.find(path)->second.value;
    EXPECT_TRUE(sameToSixDigits(std::stod(printed), truth))
        << where << " " << path << ": printed " << printed << ", truth " << truth;
}

std::vector<std::string> decodeTreeLines(MessageFormat format, const std::string& hex) {
    const std::string text = NavMessageDecoder::Decode(format, 0, 0, hex);
    EXPECT_FALSE(text.ends_with("\n"));
    return splitLines(text);
}

void expectSameLines(const std::vector<std::string>& got,
                     const std::vector<std::string>& expected) {
    for (std::size_t i = 0; i < std::min(got.size(), expected.size()); ++i) {
        ASSERT_EQ(got[i], expected[i]) << "line " << i + 1;
    }
    EXPECT_EQ(got.size(), expected.size());
}

}  // namespace ZeltNavMsg::Testing
