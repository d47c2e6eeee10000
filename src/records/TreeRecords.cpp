#include "records/TreeRecords.h"

#include <array>
#include <cmath>
#include <deque>
#include <stdexcept>
#include <vector>

#include "bits/BitUtils.h"
#include "fields/BitFieldSignedIntDef.h"
#include "fields/BitFieldUnsignedIntDef.h"
#include "fields/DescriptionWalker.h"
#include "fields/ParamModifiers.h"
#include "records/Corrections.h"
#include "records/FieldDetail.h"
#include "records/LayoutNames.h"
#include "records/Units.h"
#include "schemas/beidou_cnav1/FrameDef.h"
#include "schemas/beidou_cnav2/FrameDef.h"
#include "schemas/gps_cnav2/FrameDef.h"
#include "schemas/irnss/SubframeDef.h"

namespace ZeltNavMsg::Records {

namespace {

// One record of a value definition; a hidden field wider than 64 bits gives several,
// each of at most 64 bits, read from its own ranges.
struct TreePart {
    FieldInfo info;
    ValueRule rule;
    std::vector<BitRange> ranges;  // empty: the definition's own readRaw
    std::size_t firstSegment = 0;
    std::size_t segmentCount = 0;
    FieldDetail* detail = nullptr;  // what info.detail points at, while it is filled
};

struct TreeEntry {
    std::vector<TreePart> parts;
};

// Everything about a tree's records that does not depend on the bits, by definition
// serial. Built once per format on first use, then only read.
class TreePlan {
  public:
    TreePlan(MessageFormat format, const BitStructDef& root, std::int32_t frameBits)
        : format_(format), root_(root), frameBits_(frameBits) {
        entries_.resize(static_cast<std::size_t>(root.treeSize()));
        add(root);
        // The segment store is complete: point each record at its part of it.
        for (TreeEntry& entry : entries_) {
            for (TreePart& part : entry.parts) {
                part.info.bits = std::span<const BitSegment>(segments_).subspan(part.firstSegment,
                                                                                part.segmentCount);
                describeForOutput(part.info, *part.detail);
            }
        }
    }

    [[nodiscard]] const TreeEntry& entry(const BitFieldDef& def) const {
        return entries_[static_cast<std::size_t>(def.serial())];
    }
    [[nodiscard]] MessageFormat format() const noexcept { return format_; }
    [[nodiscard]] const BitStructDef& root() const noexcept { return root_; }
    [[nodiscard]] std::int32_t frameBits() const noexcept { return frameBits_; }

  private:
    void add(const BitFieldDef& def) {
        if (def.isStruct()) {
            for (const BitFieldDef* child : static_cast<const BitStructDef&>(def).children()) {
                add(*child);
            }
            return;
        }
        const auto& field = static_cast<const BitFieldValueDef&>(def);
        TreeEntry& entry = entries_[static_cast<std::size_t>(def.serial())];

        FieldInfo info;
        info.path = def.path();
        info.name = def.name();
        info.role = roleOf(def);
        info.listed = !def.hasFlag(Hidden);

        // The listing's value: integers by their truncated integer multiplier, reals and
        // flags as read.
        ValueRule rule;
        rule.format = field.numberFormat();
        switch (def.fieldKind()) {
            case FieldKind::UnsignedInt:
                rule.scale = static_cast<double>(truncateToUInt64(def.scaleFactor()));
                info.kind = ValueKind::Unsigned;
                break;
            case FieldKind::SignedInt:
                rule.scale = static_cast<double>(truncateToInt32(def.scaleFactor()));
                info.kind = ValueKind::Signed;
                break;
            case FieldKind::Bool:
                rule.scale = 1.0;
                info.kind = ValueKind::Flag;
                break;
            default:
                rule.scale = def.scaleFactor();
                info.kind = ValueKind::Real;
                break;
        }
        const RecordUnits units = recordUnits(def.units());
        info.units = units.units;
        rule.scale *= units.factor;
        if (info.units.empty()) {
            info.units = omittedUnits(format_, def.name());
        }
        if (const Correction* c =
                findCorrection(format_, def.path(), def.name(), def.units(), def.scaleFactor())) {
            info.corrected = true;
            info.kind = c->valueKind;
            if (c->kind == CorrectionKind::Semicircles) {
                rule.scale = def.scaleFactor() / kInterfacePi;  // exact: 2^n x pi / pi
            } else {
                rule.scale = c->scale;
                info.units = c->units;
                if (c->kind == CorrectionKind::Unsigned) {
                    rule.format = NumberFormat::UnsignedNumberFormat;
                }
            }
        }

        // At most 64 bits a record: split the ranges of a wider (hidden) field.
        std::vector<BitRange> part;
        std::int32_t partBits = 0;
        const auto flush = [&] {
            FieldDetail& detail = details_.emplace_back();
            if (info.listed) {
                detail.listing.treeField = &field;
                detail.listing.frameBits = frameBits_;
            }
            TreePart p;
            p.info = info;
            p.info.detail = &detail;
            p.detail = &detail;
            p.info.bitCount = partBits;
            p.rule = rule;
            p.rule.width = partBits;
            detail.rule = p.rule;
            detail.format = format_;
            p.firstSegment = segments_.size();
            for (const BitRange& r : part) {
                segments_.push_back({r.firstBitIndex(), r.bitsCount()});
            }
            p.segmentCount = part.size();
            if (def.totalBitsCount() > 64) {
                p.ranges = part;
            }
            entry.parts.push_back(std::move(p));
            part.clear();
            partBits = 0;
        };
        for (const BitRange& range : def.ranges()) {
            std::int32_t first = range.firstBitIndex();
            std::int32_t left = range.bitsCount();
            while (left > 0) {
                const std::int32_t take = std::min(left, 64 - partBits);
                part.emplace_back(BitRange::InitializationType::FirstBitAndCount, first, take);
                partBits += take;
                first += take;
                left -= take;
                if (partBits == 64) {
                    flush();
                }
            }
        }
        if (partBits > 0) {
            flush();
        }
    }

    static FieldRole roleOf(const BitFieldDef& def) {
        if (def.name() == "CRC" && def.hasFlag(RawHexOnly)) {
            return FieldRole::Check;
        }
        return def.hasFlag(Hidden) ? FieldRole::Reserved : FieldRole::Data;
    }

    MessageFormat format_;
    const BitStructDef& root_;
    std::int32_t frameBits_;
    std::vector<TreeEntry> entries_;
    std::vector<BitSegment> segments_;
    std::deque<FieldDetail> details_;  // stays in place as it grows
};

const TreePlan& planOf(MessageFormat format) {
    switch (format) {
        case MessageFormat::GpsCNav2: {
            static const TreePlan plan(format, GpsCNav2::gpsCNav2FrameDef(),
                                       GpsCNav2::FrameDef::kBits);
            return plan;
        }
        case MessageFormat::BeidouCNav1: {
            static const TreePlan plan(format, BeidouCNav1::beidouCNav1FrameDef(),
                                       BeidouCNav1::FrameDef::kBits);
            return plan;
        }
        case MessageFormat::BeidouCNav2: {
            static const TreePlan plan(format, BeidouCNav2::beidouCNav2FrameDef(),
                                       BeidouCNav2::FrameDef::kBits);
            return plan;
        }
        case MessageFormat::Irnss: {
            static const TreePlan plan(format, Irnss::irnssSubframeDef(),
                                       Irnss::SubframeDef::kBits);
            return plan;
        }
        default:
            throw std::logic_error("decodeTree: not a definition-tree format");
    }
}

double valueOf(const ValueRule& rule, std::uint64_t raw) {
    return BitUtils::readDouble(raw, rule.scale, rule.width, rule.format);
}

// Records what the walk reaches; notes the variants it enters for the layout name.
class RecordSink {
  public:
    static constexpr bool kVisitsHidden = true;
    static constexpr std::size_t kMaxVariants = 4;

    RecordSink(const TreePlan& plan, MessageWriter& writer) noexcept
        : plan_(plan), writer_(writer) {}

    void heading(const BitStructDef& def, std::uint32_t /*level*/) noexcept {
        if (def.containerId() >= 0 && variantCount_ < kMaxVariants) {
            variants_[variantCount_++] = def.containerId();
        }
    }
    void lineBreak() noexcept {}
    void value(const Describe::ValueLine& line) {
        const TreePart& part = plan_.entry(line.field).parts.front();
        writer_.add(part.info, line.raw, valueOf(part.rule, line.raw));
    }
    void hidden(const BitFieldDef& def, ConstBitBuffer buffer) {
        if (def.isStruct()) {
            for (const BitFieldDef* child : static_cast<const BitStructDef&>(def).children()) {
                hidden(*child, buffer);
            }
            return;
        }
        const auto& field = static_cast<const BitFieldValueDef&>(def);
        for (const TreePart& part : plan_.entry(def).parts) {
            const std::uint64_t raw = part.ranges.empty() ? field.readRaw(buffer)
                                                          : BitUtils::readBits(part.ranges, buffer);
            writer_.add(part.info, raw, valueOf(part.rule, raw));
        }
    }

    [[nodiscard]] std::span<const std::int32_t> variants() const noexcept {
        return std::span<const std::int32_t>(variants_).first(variantCount_);
    }

  private:
    const TreePlan& plan_;
    MessageWriter& writer_;
    std::array<std::int32_t, kMaxVariants> variants_{};
    std::size_t variantCount_ = 0;
};

}  // namespace

std::int32_t treeFrameBits(MessageFormat format) noexcept {
    switch (format) {
        case MessageFormat::GpsCNav2:
            return GpsCNav2::FrameDef::kBits;
        case MessageFormat::BeidouCNav1:
            return BeidouCNav1::FrameDef::kBits;
        case MessageFormat::BeidouCNav2:
            return BeidouCNav2::FrameDef::kBits;
        case MessageFormat::Irnss:
            return Irnss::SubframeDef::kBits;
        default:
            return 0;
    }
}

void decodeTree(MessageFormat format, MessageWriter& writer) {
    const TreePlan& plan = planOf(format);
    const ConstBitBuffer buffer(writer.bits(), plan.frameBits());
    RecordSink sink(plan, writer);
    Describe::walk(plan.root(), buffer, 0, sink);
    appendTreeLayout(format, buffer, sink.variants(), writer.layout());
}

}  // namespace ZeltNavMsg::Records
