#include "fields/BitFieldDef.h"

#include <algorithm>

#include "bits/BitsNumberingSchemeConvertor.h"
#include "fields/BitStructDef.h"

namespace ZeltNavMsg {

namespace {

FieldParams applyModifiers(const Modifiers& modifiers) {
    FieldParams params;
    modifiers.applyTo(params);
    return params;
}

std::int32_t sumOfWidths(std::span<const BitRange> ranges) {
    std::int64_t total = 0;
    for (const BitRange& r : ranges) {
        total += r.bitsCount();
    }
    return static_cast<std::int32_t>(total);
}

}  // namespace

std::vector<BitRange> bits(std::int32_t first, std::int32_t count) {
    return {BitRange(BitRange::InitializationType::FirstBitAndCount, first, count)};
}

BitFieldDef::BitFieldDef(BitStructDef* parent, std::string name, std::vector<BitRange> ranges,
                         const Modifiers& modifiers, bool isStruct)
    : parent_(parent), name_(std::move(name)), ranges_(std::move(ranges)), isStruct_(isStruct) {
    FieldParams params = applyModifiers(modifiers);
    text_ = std::move(params.text);
    units_ = std::move(params.units);
    defaultValue_ = params.defaultValue;
    scaleFactor_ = params.scaleFactor;
    bitsNumbering_ = params.bitsNumbering;
    order_ = params.order;
    flags_ = params.flags;
    containerId_ = params.containerId;

    if (parent_ != nullptr) {
        // Declared relative to the parent, in the parent's numbering: make absolute.
        BitsNumberingSchemeConvertor(static_cast<BitsNumberingScheme>(parent_->bitsNumbering()),
                                     parent_->totalBitsCount())
            .convert(ranges_);
        std::int32_t base = 0;
        if (!parent_->ranges().empty()) {
            base = parent_->ranges().front().firstBitIndex();
            for (const BitRange& r : parent_->ranges()) {
                base = std::min(base, r.firstBitIndex());
            }
        }
        for (BitRange& r : ranges_) {
            r = BitRange(BitRange::InitializationType::FirstAndLastBit,
                         static_cast<std::int32_t>(std::int64_t{r.firstBitIndex()} + base),
                         static_cast<std::int32_t>(std::int64_t{r.lastBitIndex()} + base));
        }
    }
    totalBits_ = sumOfWidths(ranges_);
    if (parent_ != nullptr) {
        const std::string& prefix = parent_->childPrefix_;
        path_ = prefix.empty() ? name_ : prefix + "." + name_;
        // Members of a transparent structure are listed at its parent's level.
        childPrefix_ = hasFlag(Transparent) ? prefix : path_;
        BitFieldDef* root = parent_;
        while (root->parent_ != nullptr) {
            root = root->parent_;
        }
        serial_ = root->treeSize_++;
        parent_->addChild(this);
    }
}

BitFieldDef::~BitFieldDef() {
    if (parent_ != nullptr) {
        parent_->removeChild(this);
    }
}

}  // namespace ZeltNavMsg
