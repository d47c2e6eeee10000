#include "support/TreeChecks.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

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

}  // namespace ZeltNavMsg::Testing
