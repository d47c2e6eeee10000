#include "records/TreeRecords.h"

#include <algorithm>
#include <cmath>
#include <deque>
#include <stdexcept>
#include <vector>

#include "bits/BitUtils.h"
#include "fields/BitFieldSignedIntDef.h"
#include "fields/BitFieldUnsignedIntDef.h"
#include "fields/ParamModifiers.h"
#include "fields/TreePlan.h"
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

// The record of one slot of the tree's plan: a listed field, or a part of at most 64
// bits of a hidden one.
struct RecordSlot {
    FieldInfo info;
    ValueRule rule;
};

// Everything about a tree's records that does not depend on the bits, by slot of the
// tree's plan, which the listing walks too. Built once per format on first use, then
// only read.
class TreeRecordPlan {
  public:
    TreeRecordPlan(MessageFormat format, const Describe::TreePlan& plan)
        : format_(format), plan_(plan) {
        if (plan.readableBytes() > MessageWriter::bitsSize()) {
            throw std::logic_error("decodeTree: the frame does not fit the message's bits");
        }
        slots_.reserve(plan.slots().size());
        for (const Describe::TreeSlot& slot : plan.slots()) {
            add(slot);
        }
        // The segment store is complete: point each record at its part of it.
        for (std::size_t i = 0; i < slots_.size(); ++i) {
            FieldInfo& info = slots_[i].info;
            info.bits =
                std::span<const BitSegment>(segments_).subspan(firstSegments_[i], info.bits.size());
            describeForOutput(info, details_[i]);
        }
    }

    [[nodiscard]] const RecordSlot& slot(std::uint32_t index) const noexcept {
        return slots_[index];
    }
    [[nodiscard]] const Describe::TreePlan& plan() const noexcept { return plan_; }

  private:
    void add(const Describe::TreeSlot& slot) {
        const BitFieldValueDef& def = *slot.field;
        FieldInfo info;
        info.path = def.path();
        info.name = def.name();
        info.role = roleOf(def);
        info.listed = slot.listed;

        // The listing's value: integers by their truncated integer multiplier, reals and
        // flags as read.
        ValueRule rule;
        rule.format = def.numberFormat();
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
        info.bitCount = slot.width;
        rule.width = slot.width;

        FieldDetail& detail = details_.emplace_back();
        detail.rule = rule;
        detail.format = format_;
        if (info.listed) {
            detail.listing.treeField = &def;
            detail.listing.frameBits = plan_.frameBits();
        }
        info.detail = &detail;
        firstSegments_.push_back(segments_.size());
        for (const BitRange& r : slot.ranges) {
            segments_.push_back({r.firstBitIndex(), r.bitsCount()});
        }
        // The size only, until the store is complete.
        info.bits = std::span<const BitSegment>(static_cast<const BitSegment*>(nullptr),
                                                slot.ranges.size());
        slots_.push_back({info, rule});
    }

    static FieldRole roleOf(const BitFieldDef& def) {
        if (def.name() == "CRC" && def.hasFlag(RawHexOnly)) {
            return FieldRole::Check;
        }
        return def.hasFlag(Hidden) ? FieldRole::Reserved : FieldRole::Data;
    }

    MessageFormat format_;
    const Describe::TreePlan& plan_;
    std::vector<RecordSlot> slots_;
    std::vector<std::size_t> firstSegments_;
    std::vector<BitSegment> segments_;
    std::deque<FieldDetail> details_;  // stays in place as it grows
};

const TreeRecordPlan& planOf(MessageFormat format) {
    switch (format) {
        case MessageFormat::GpsCNav2: {
            static const TreeRecordPlan plan(format,
                                             Describe::treePlanOf<&GpsCNav2::gpsCNav2FrameDef>());
            return plan;
        }
        case MessageFormat::BeidouCNav1: {
            static const TreeRecordPlan plan(
                format, Describe::treePlanOf<&BeidouCNav1::beidouCNav1FrameDef>());
            return plan;
        }
        case MessageFormat::BeidouCNav2: {
            static const TreeRecordPlan plan(
                format, Describe::treePlanOf<&BeidouCNav2::beidouCNav2FrameDef>());
            return plan;
        }
        case MessageFormat::Irnss: {
            static const TreeRecordPlan plan(format,
                                             Describe::treePlanOf<&Irnss::irnssSubframeDef>());
            return plan;
        }
        default:
            throw std::logic_error("decodeTree: not a definition-tree format");
    }
}

// The record's value: the number `rule.format` reads times the scale.
double valueOf(const ValueRule& rule, std::uint64_t raw) {
    if (isUnsignedFormat(rule.format)) {
        return static_cast<double>(raw & lowBitsMask(rule.width)) * rule.scale;
    }
    return BitUtils::readDouble(raw, rule.scale, rule.width, rule.format);
}

// Layout names look at the innermost of at most this many variants.
constexpr std::size_t kMaxVariants = 4;

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
    const TreeRecordPlan& records = planOf(format);
    const Describe::TreePlan& plan = records.plan();
    const ConstBitBuffer frame(writer.bits(), plan.frameBits());
    const Describe::TreeLayout& layout = plan.layout(frame);
    DecodedField* out = writer.extend(layout.recordCount);
    for (const Describe::TreeLine& line : plan.lines(layout)) {
        if (line.kind != Describe::LineKind::Heading) {
            const RecordSlot& slot = records.slot(line.slot);
            const std::uint64_t raw = plan.read(line, frame);
            *out++ = DecodedField(slot.info, raw, valueOf(slot.rule, raw));
        }
    }
    const std::span<const std::int32_t> variants(layout.variants);
    appendTreeLayout(format, frame, variants.first(std::min(variants.size(), kMaxVariants)),
                     writer.layout());
}

}  // namespace ZeltNavMsg::Records
