#include "fields/BitStructDef.h"

#include <algorithm>

#include "fields/BitFieldUnsignedIntDef.h"

namespace ZeltNavMsg {

BitStructDef::BitStructDef(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                           const Modifiers& modifiers)
    : BitFieldDef(parent, std::move(name), std::move(ranges), modifiers, true) {}

void BitStructDef::addChild(const BitFieldDef* child) {
    // After every child of the same or a lower order: equal orders keep declaration order.
    const auto at = std::upper_bound(
        children_.begin(), children_.end(), child->order(),
        [](std::int32_t order, const BitFieldDef* existing) { return order < existing->order(); });
    children_.insert(at, child);
}

void BitStructDef::removeChild(const BitFieldDef* child) noexcept {
    std::erase(children_, child);
}

void BitStructDef::writeDefault(BitBuffer& buffer) const {
    if (hasFlag(NoDefaults)) {
        return;
    }
    for (const BitFieldDef* child : children_) {
        child->writeDefault(buffer);
    }
}

std::int32_t BitStructDef::activeContainerId(ConstBitBuffer /*buffer*/) const {
    return -1;
}

std::int32_t SelectedByFieldDef::activeContainerId(ConstBitBuffer buffer) const {
    if (selector_ == nullptr) {
        return -1;
    }
    return static_cast<std::int32_t>(selector_->read(buffer));
}

}  // namespace ZeltNavMsg
