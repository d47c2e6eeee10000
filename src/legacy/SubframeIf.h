#ifndef ZELTNAVMSG_LEGACY_SUBFRAMEIF_H
#define ZELTNAVMSG_LEGACY_SUBFRAMEIF_H

#include <bit>
#include <cstdint>
#include <span>
#include <string>

#include "legacy/ListingPlan.h"
#include "legacy/Subframe.h"
#include "legacy/SubframeCoder.h"
#include "legacy/SubframeFieldInfo.h"
#include "text/TextBuffer.h"

namespace ZeltNavMsg::Legacy {

// A signal's table of subframe fields and the text it makes of one subframe.
// Concrete interfaces only map (subframe, page) to a layout and own a coder; they
// are constants, so any number of threads may describe through one at once.
class SubframeIf {
  public:
    using subframe_t = Legacy::subframe_t;

    enum class DecodingMode : std::int32_t {
        AsReceived = 0,   // describe the bits as they came
        DecodeWords = 1,  // run the coder's Decode on a copy first
    };

    // `plan`, when given, must be planListing() of the same table; without one each
    // printed entry is planned as it is met, which gives the same text more slowly.
    constexpr SubframeIf(const SubframeFieldInfo* fields, std::int32_t fieldCount,
                         const ListingPlan* plan = nullptr) noexcept
        : fields_(fields), fieldCount_(fieldCount), plan_(plan) {}
    SubframeIf(const SubframeIf&) = delete;
    SubframeIf& operator=(const SubframeIf&) = delete;
    constexpr virtual ~SubframeIf() = default;

    // Layout of the record's subframe and page; 0 when the pair has none.
    [[nodiscard]] virtual std::int32_t GetLayoutId(const subframe_t& sf) const = 0;
    [[nodiscard]] virtual const SubframeCoder& GetCoder() const = 0;

    // Replaces `out` with the description of `sf`, lines ended by "\n".
    std::string& MakeReadableDescription(std::string& out, const subframe_t& sf,
                                         DecodingMode mode) const;

    // Appends the same description to `out`, with `out`'s line end.
    void describe(Text::TextBuffer& out, const subframe_t& sf, DecodingMode mode) const;

    [[nodiscard]] std::span<const SubframeFieldInfo> fields() const noexcept {
        return {fields_, static_cast<std::size_t>(fieldCount_)};
    }
    [[nodiscard]] const ListingPlan* plan() const noexcept { return plan_; }

    // Calls fn(run) for each planned run of one pass that applies to the record's
    // subframe and page (layout `layoutId`), in listing order; the printed runs only,
    // or every planned run when `withUnprinted`. The one selection rule of the listing
    // and of the records. Needs a plan.
    template <class Fn>
    void forEachRun(const subframe_t& sf, std::int32_t layoutId, bool rawPass, bool withUnprinted,
                    Fn&& fn) const {
        const RunIndex& index = plan_->index;
        if (index.indexed) {
            std::uint64_t runs = index.selected(sf.subframe, layoutId) &
                                 (rawPass ? index.rawPass : ~index.rawPass) &
                                 (withUnprinted ? ~std::uint64_t{0} : index.printed);
            for (; runs != 0; runs &= runs - 1) {
                fn(plan_->runs[static_cast<std::size_t>(std::countr_zero(runs))]);
            }
            return;
        }
        for (const PlannedRun& run : plan_->runs) {
            if (run.rawPass == rawPass && (run.printed || withUnprinted) &&
                selected(sf, layoutId, run.layoutId, run.subframe, run.page)) {
                fn(run);
            }
        }
    }

    // Calls fn(lineIndex, line) for each planned line of the runs forEachRun selects.
    template <class Fn>
    void forEachLine(const subframe_t& sf, std::int32_t layoutId, bool rawPass, bool withUnprinted,
                     Fn&& fn) const {
        forEachRun(sf, layoutId, rawPass, withUnprinted, [&](const PlannedRun& run) {
            for (std::size_t i = run.first; i < std::size_t{run.first} + run.count; ++i) {
                fn(i, plan_->lines[i]);
            }
        });
    }

    // A subframe without pages is matched by its number alone; a paged entry needs the
    // layout of the record's page.
    static constexpr bool selected(const subframe_t& sf, std::int32_t layoutId,
                                   std::int32_t entryLayout, std::int32_t subframe,
                                   std::int32_t page) noexcept {
        return entryLayout == 0 || (subframe == sf.subframe && page == 0) ||
               entryLayout == layoutId;
    }

  private:
    // Appends the entries of one pass: raw-pass entries from the record as received,
    // or the others from the (decoded) record. `bits` is the record's data padded
    // with zeros to kPaddedDataBytes; `layoutId` is GetLayoutId of the record.
    void DescribeFields(Text::TextBuffer& out, const subframe_t& sf, const std::uint8_t* bits,
                        std::int32_t layoutId, bool rawPass) const;

    const SubframeFieldInfo* fields_;
    std::int32_t fieldCount_;
    const ListingPlan* plan_;
};

// Raw value and width of an entry in `data` (bits counted from 1). Segments are
// joined most significant first in a 32-bit accumulator, so a wider field keeps
// its last 32 bits.
struct RawField {
    std::uint32_t value;
    std::int32_t width;
};
// What the listing prints on a planned line after its label (the leading blank
// dropped), read from `bits`, the record's data padded with zeros to kPaddedDataBytes.
// Appended to `out` without a line end.
void appendLineValue(const PlannedLine& line, const std::uint8_t* bits, Text::TextBuffer& out);

[[nodiscard]] RawField extractField(const SubframeFieldInfo& field,
                                    const std::uint8_t* data) noexcept;

}  // namespace ZeltNavMsg::Legacy

#endif
