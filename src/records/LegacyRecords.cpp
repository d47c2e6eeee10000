#include "records/LegacyRecords.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <deque>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "bits/BigEndian.h"
#include "bits/BitUtils.h"
#include "checks/BeidouCodewords.h"
#include "legacy/BeidouD1Interface.h"
#include "legacy/BeidouD2Interface.h"
#include "legacy/GpsL1caInterface.h"
#include "legacy/QzssL1caInterface.h"
#include "records/Corrections.h"
#include "records/FieldDetail.h"
#include "records/LayoutNames.h"
#include "records/Units.h"

namespace ZeltNavMsg::Records {

namespace {

using Legacy::PlannedLine;
using Legacy::subframe_t;
using Legacy::SubframeFieldInfo;
using Legacy::SubframeIf;

// Up to 57 bits of the decoded subframe: (loadBigEndian64(byte) << shift) >> (64 - length).
struct Piece {
    std::uint16_t byte = 0;
    std::uint8_t shift = 0;
    std::uint8_t length = 0;
};

struct LegacyPart {
    static constexpr std::size_t kMaxPieces = 8;
    FieldInfo info;
    ValueRule rule;
    bool isSigned = false;  // two's complement of rule.width bits
    std::array<Piece, kMaxPieces> pieces{};
    std::uint8_t pieceCount = 0;
    std::size_t firstSegment = 0;
    std::size_t segmentCount = 0;
};

struct LegacyLine {
    std::uint32_t firstPart = 0;
    std::uint32_t partCount = 0;
};

// One record of a selection, laid out for the records' loop: its field, its value
// rule and its first piece; a record of several pieces reads its part.
struct Reader {
    const FieldInfo* info = nullptr;
    double scale = 1.0;
    Piece piece;
    std::uint8_t pieceCount = 0;
    std::uint8_t unused = 0;  // 64 - width: the sign extension of a signed value
    bool isSigned = false;
    bool wide = false;  // 64 bits: converted as unsigned
    std::uint32_t part = 0;
};

// The record's value: the document's number (two's complement or unsigned) times
// the scale.
double valueOf(const LegacyPart& part, std::uint64_t raw) noexcept {
    if (part.isSigned) {
        const int unused = 64 - part.rule.width;
        return static_cast<double>(static_cast<std::int64_t>(raw << unused) >> unused) *
               part.rule.scale;
    }
    return static_cast<double>(raw) * part.rule.scale;
}

std::uint64_t readPart(const LegacyPart& part, const std::uint8_t* bits) noexcept {
    if (part.pieceCount == 1) {  // most fields
        const Piece& p = part.pieces[0];
        return (Bits::loadBigEndian64(bits + p.byte) << p.shift) >> (64 - p.length);
    }
    std::uint64_t raw = 0;
    for (std::uint8_t i = 0; i < part.pieceCount; ++i) {
        const Piece& p = part.pieces[i];
        raw = (raw << p.length) |
              ((Bits::loadBigEndian64(bits + p.byte) << p.shift) >> (64 - p.length));
    }
    return raw;
}

// Input position (0 = first transmitted bit) of the decoded subframe's bit `index`
// (counted from 0), by format.
using PositionMap = std::int32_t (*)(std::int32_t index);

std::int32_t samePosition(std::int32_t index) {
    return index;
}

// BeiDou words 2-10 interleave two codewords on air; the checks know where each bit
// of the decoded subframe was received.
std::int32_t interleavedPosition(std::int32_t index) {
    return index < Checks::kBeidouSubframeBits
               ? Checks::beidouInputPositions()[static_cast<std::size_t>(index)]
               : index;
}

// The record plan of one signal's table: a record for every planned line (printed or
// not), built once on first use and then only read.
class LegacyPlan {
  public:
    LegacyPlan(MessageFormat format, const SubframeIf& signal, PositionMap map)
        : format_(format), signal_(signal) {
        const Legacy::ListingPlan& plan = *signal.plan();
        lines_.resize(plan.lines.size());
        for (std::size_t i = 0; i < plan.lines.size(); ++i) {
            addLine(i, plan.lines[i], signal.fields()[plan.lines[i].entry], map);
        }
        // One detail per part, in the same order.
        for (std::size_t i = 0; i < parts_.size(); ++i) {
            LegacyPart& part = parts_[i];
            part.info.bits = std::span<const BitSegment>(segments_).subspan(part.firstSegment,
                                                                            part.segmentCount);
            describeForOutput(part.info, details_[i]);
        }
        // What the listing's rule selects for each subframe 1-5 and layout, once: the
        // parts of the raw pass, then those of the decoded pass.
        for (const SubframeFieldInfo& entry : signal.fields()) {
            maxLayout_ = std::max(maxLayout_, entry.layoutId);
        }
        for (std::int32_t subframe = 1; subframe <= kSubframes; ++subframe) {
            for (std::int32_t layout = 0; layout <= maxLayout_; ++layout) {
                Legacy::subframe_t sf;
                sf.subframe = subframe;
                Selection& selection = selections_.emplace_back();
                selection.first = static_cast<std::uint32_t>(readers_.size());
                for (const bool rawPass : {true, false}) {
                    signal.forEachLine(sf, layout, rawPass, true,
                                       [&](std::size_t i, const PlannedLine&) {
                                           const LegacyLine& line = lines_[i];
                                           for (std::uint32_t p = 0; p < line.partCount; ++p) {
                                               readers_.push_back(readerOf(line.firstPart + p));
                                           }
                                       });
                    if (rawPass) {
                        selection.rawCount =
                            static_cast<std::uint32_t>(readers_.size()) - selection.first;
                    }
                }
                selection.count = static_cast<std::uint32_t>(readers_.size()) - selection.first;
            }
        }
        svIdLines_[0] = findLine(4, "sv_id");
        svIdLines_[1] = findLine(5, "sv_id");
        // The layout names of subframes 1-5 and pages 0 ... kNamedPages - 1, once each.
        std::map<std::string, std::size_t> nameIndex;
        for (std::int32_t subframe = 1; subframe <= kSubframes; ++subframe) {
            for (std::int32_t page = 0; page < kNamedPages; ++page) {
                Legacy::subframe_t sf;
                sf.subframe = subframe;
                sf.page = page;
                std::string name;
                appendLegacyLayout(format, subframe, page, signal.GetLayoutId(sf), -1, name);
                const auto [at, added] = nameIndex.emplace(name, names_.size());
                if (added) {
                    names_.push_back(name);
                }
                nameOf_.push_back(static_cast<std::uint32_t>(at->second));
            }
        }
    }

    // The name of the subframe's layout chosen by its page, when made in advance.
    [[nodiscard]] const std::string* layoutName(const subframe_t& sf) const noexcept {
        if (sf.subframe < 1 || sf.subframe > kSubframes || sf.page < 0 || sf.page >= kNamedPages) {
            return nullptr;
        }
        const std::size_t index = (static_cast<std::size_t>(sf.subframe) - 1) * kNamedPages +
                                  static_cast<std::size_t>(sf.page);
        return &names_[nameOf_[index]];
    }

    // The records the listing's rule selects for the subframe's number and
    // `layoutId`, raw pass first: `rawCount` of them read the bits as received.
    struct Parts {
        std::span<const Reader> readers;
        std::uint32_t rawCount = 0;
    };
    [[nodiscard]] bool hasSelection(const subframe_t& sf, std::int32_t layoutId) const noexcept {
        return sf.subframe >= 1 && sf.subframe <= kSubframes && layoutId >= 0 &&
               layoutId <= maxLayout_;
    }
    [[nodiscard]] Parts selection(const subframe_t& sf, std::int32_t layoutId) const noexcept {
        const auto index = (static_cast<std::size_t>(sf.subframe) - 1) *
                               (static_cast<std::size_t>(maxLayout_) + 1) +
                           static_cast<std::size_t>(layoutId);
        const Selection& s = selections_[index];
        return {std::span<const Reader>(readers_).subspan(s.first, s.count), s.rawCount};
    }

    void addPart(std::uint32_t index, const std::uint8_t* bits, MessageWriter& writer) const {
        const LegacyPart& part = parts_[index];
        const std::uint64_t raw = readPart(part, bits);
        writer.add(part.info, raw, valueOf(part, raw));
    }
    // The record of a selection's reader.
    void add(const Reader& r, const std::uint8_t* bits, MessageWriter& writer) const {
        const std::uint64_t raw =
            r.pieceCount == 1 ? (Bits::loadBigEndian64(bits + r.piece.byte) << r.piece.shift) >>
                                    (64 - r.piece.length)
                              : readPart(parts_[r.part], bits);
        double value = 0.0;
        if (r.isSigned) {
            value = static_cast<double>(static_cast<std::int64_t>(raw << r.unused) >> r.unused);
        } else {
            // Below 2^63 unless 64 bits wide: the signed conversion is one instruction.
            value = r.wide ? static_cast<double>(raw)
                           : static_cast<double>(static_cast<std::int64_t>(raw));
        }
        writer.add(*r.info, raw, value * r.scale);
    }
    void addLine(std::size_t lineIndex, const std::uint8_t* bits, MessageWriter& writer) const {
        const LegacyLine& line = lines_[lineIndex];
        for (std::uint32_t p = line.firstPart; p < line.firstPart + line.partCount; ++p) {
            addPart(p, bits, writer);
        }
    }

    // The SV ID of subframe 4 or 5 where the table puts it.
    [[nodiscard]] std::int64_t svIdLine(std::int32_t subframe) const noexcept {
        return svIdLines_[subframe == 4 ? 0 : 1];
    }

    [[nodiscard]] const SubframeIf& signal() const noexcept { return signal_; }
    [[nodiscard]] MessageFormat format() const noexcept { return format_; }

    [[nodiscard]] std::uint64_t readLine(std::size_t lineIndex, const std::uint8_t* bits) const {
        return readPart(parts_[lines_[lineIndex].firstPart], bits);
    }

  private:
    static constexpr std::int32_t kSubframes = 5;
    static constexpr std::int32_t kNamedPages = 128;

    [[nodiscard]] Reader readerOf(std::uint32_t index) const {
        const LegacyPart& part = parts_[index];
        Reader r;
        r.info = &part.info;
        r.scale = part.rule.scale;
        r.piece = part.pieces[0];
        r.pieceCount = part.pieceCount;
        r.unused = static_cast<std::uint8_t>(64 - part.rule.width);
        r.isSigned = part.isSigned;
        r.wide = part.rule.width >= 64;
        r.part = index;
        return r;
    }

    struct Selection {
        std::uint32_t first = 0;
        std::uint32_t count = 0;
        std::uint32_t rawCount = 0;
    };

    // The line of the entry `name` the listing's rule selects in subframe `subframe`
    // whatever its page, or -1.
    [[nodiscard]] std::int64_t findLine(std::int32_t subframe, std::string_view name) const {
        Legacy::subframe_t sf;
        sf.subframe = subframe;
        std::int64_t found = -1;
        signal_.forEachLine(sf, 0, false, true, [&](std::size_t i, const PlannedLine& line) {
            if (found < 0 && signal_.fields()[line.entry].name == name) {
                found = static_cast<std::int64_t>(i);
            }
        });
        return found;
    }

    void addLine(std::size_t index, const PlannedLine& planned, const SubframeFieldInfo& entry,
                 PositionMap map) {
        LegacyLine& line = lines_[index];
        line.firstPart = static_cast<std::uint32_t>(parts_.size());

        FieldInfo info;
        info.name = entry.name;
        info.path = entry.name;
        info.role = roleOf(entry);
        info.listed = Legacy::isPrinted(entry);

        ValueRule rule;
        const bool isSigned =
            entry.valueType == Legacy::kSigned || entry.valueType == Legacy::kSignedScaled;
        const bool scaled =
            entry.valueType == Legacy::kUnsignedScaled || entry.valueType == Legacy::kSignedScaled;
        rule.format = isSigned ? NumberFormat::TwosComplementNumberFormat
                               : NumberFormat::UnsignedNumberFormat;
        rule.scale = scaled ? entry.scale : 1.0;
        info.kind = scaled ? ValueKind::Real : isSigned ? ValueKind::Signed : ValueKind::Unsigned;
        if ((entry.flags & Legacy::kShowCharacter) != 0) {
            info.kind = ValueKind::Character;
        }
        const std::string_view listingUnits = entry.units != nullptr ? entry.units : "";
        const RecordUnits units = recordUnits(listingUnits);
        info.units = units.units;
        rule.scale *= units.factor;
        if (info.units.empty()) {
            info.units = omittedUnits(format_, info.name);
        }

        // The entry's bits in the decoded subframe, counted from 1, most significant
        // first; a correction may put them on the document's boundaries.
        std::vector<TableSegment> bits;
        for (std::int32_t s = 0; s < entry.segmentCount && s < SubframeFieldInfo::kMaxSegments;
             ++s) {
            if (entry.segmentLength[s] > 0) {
                bits.push_back({entry.segmentStart[s], entry.segmentLength[s]});
            }
        }
        if (const Correction* c =
                findCorrection(format_, info.path, info.name, listingUnits, entry.scale)) {
            info.corrected = true;
            info.kind = c->valueKind;
            info.units = c->units;
            rule.scale = c->scale;
            if (c->kind == CorrectionKind::Unsigned) {
                rule.format = NumberFormat::UnsignedNumberFormat;
            } else if (c->kind == CorrectionKind::IcdErd) {
                const ErdBits erd = icdErdBits(std::stoi(std::string(info.name.substr(3))));
                bits.assign(erd.segments, erd.segments + erd.count);
                rule.format = NumberFormat::TwosComplementNumberFormat;
            }
        }

        // Records of at most 64 bits, each read in pieces of at most 32 bits.
        LegacyPart part;
        std::int32_t partBits = 0;
        const auto flush = [&] {
            FieldDetail& detail = details_.emplace_back();
            if (info.listed) {
                detail.listing.legacyLine = &planned;
                detail.listing.rawPass = (entry.flags & Legacy::kRawPass) != 0;
            }
            part.info = info;
            part.info.detail = &detail;
            part.info.bitCount = partBits;
            part.rule = rule;
            part.rule.width = partBits;
            part.isSigned = rule.format != NumberFormat::UnsignedNumberFormat;
            detail.rule = part.rule;
            detail.format = format_;
            parts_.push_back(part);
            part = LegacyPart{};
            partBits = 0;
        };
        for (const TableSegment& segment : bits) {
            std::int32_t first = segment.first - 1;
            std::int32_t left = segment.length;
            while (left > 0) {
                if (partBits == 64 || part.pieceCount == LegacyPart::kMaxPieces) {
                    flush();
                }
                const std::int32_t take = std::min({left, 32, 64 - partBits});
                if (part.pieceCount == 0) {
                    part.firstSegment = segments_.size();
                }
                part.pieces[part.pieceCount++] = {static_cast<std::uint16_t>(first / 8),
                                                  static_cast<std::uint8_t>(first % 8),
                                                  static_cast<std::uint8_t>(take)};
                for (std::int32_t b = first; b < first + take; ++b) {
                    const std::int32_t at = map(b);
                    if (part.segmentCount > 0 &&
                        segments_.back().first + segments_.back().count == at) {
                        ++segments_.back().count;
                    } else {
                        segments_.push_back({at, 1});
                        ++part.segmentCount;
                    }
                }
                partBits += take;
                first += take;
                left -= take;
            }
        }
        if (partBits > 0) {
            flush();
        }
        line.partCount = static_cast<std::uint32_t>(parts_.size()) - line.firstPart;
    }

    static FieldRole roleOf(const SubframeFieldInfo& entry) {
        if ((entry.flags & Legacy::kWholeWord) != 0) {
            return FieldRole::Word;
        }
        if ((entry.flags & Legacy::kNeverPrinted) != 0) {
            return FieldRole::Check;
        }
        // Reserved bits by name: the tables also mark as reserved a parameter they do
        // not print (the most significant part of D2 omegadot), which is data.
        const std::string_view name = entry.name;
        if (name.starts_with("rev") || name.starts_with("reserved") || name.starts_with("tpar")) {
            return FieldRole::Reserved;
        }
        return FieldRole::Data;
    }

    MessageFormat format_;
    const SubframeIf& signal_;
    std::vector<LegacyLine> lines_;
    std::vector<LegacyPart> parts_;
    std::vector<BitSegment> segments_;
    std::deque<FieldDetail> details_;  // stays in place as it grows
    std::int32_t maxLayout_ = 0;
    std::vector<Selection> selections_;  // by subframe and layout
    std::vector<Reader> readers_;
    std::vector<std::string> names_;
    std::vector<std::uint32_t> nameOf_;  // by subframe and page
    std::int64_t svIdLines_[2] = {-1, -1};
};

const LegacyPlan& planOf(MessageFormat format) {
    switch (format) {
        case MessageFormat::GpsLNav: {
            static const LegacyPlan plan(format, Legacy::GPS_L1CA_Interface, samePosition);
            return plan;
        }
        case MessageFormat::QzssLNav: {
            static const LegacyPlan plan(format, Legacy::QZSS_L1CA_Interface, samePosition);
            return plan;
        }
        case MessageFormat::BeidouD1: {
            static const LegacyPlan plan(format, Legacy::BEIDOU_D1_Interface, interleavedPosition);
            return plan;
        }
        case MessageFormat::BeidouD2: {
            static const LegacyPlan plan(format, Legacy::BEIDOU_D2_Interface, interleavedPosition);
            return plan;
        }
        default:
            throw std::logic_error("decodeSubframe: not a 300-bit subframe format");
    }
}

}  // namespace

void decodeSubframe(MessageFormat format, const subframe_t& sf, MessageWriter& writer) {
    const LegacyPlan& plan = planOf(format);
    const SubframeIf& signal = plan.signal();

    // As received, then decoded: LNAV data bits with the D30* inversion undone (every
    // word, whatever the bit count: bits not given read as zero, and no word is reported
    // as not fitting); BeiDou codewords corrected and de-interleaved.
    std::memcpy(writer.received(), sf.data, sizeof sf.data);
    if (format == MessageFormat::BeidouD1 || format == MessageFormat::BeidouD2) {
        Checks::correctBeidouSubframe(sf.data, sf.bitCount,
                                      std::span<std::uint8_t, Checks::kBeidouDecodedBytes>(
                                          writer.bits(), Checks::kBeidouDecodedBytes));
    } else {
        subframe_t decoded = sf;
        decoded.bitCount = subframe_t::kDataBytes * 8;
        signal.GetCoder().Decode(decoded);
        std::memcpy(writer.bits(), decoded.data, sizeof decoded.data);
    }

    std::int32_t layoutId = signal.GetLayoutId(sf);
    std::int32_t svId = -1;
    if (format == MessageFormat::QzssLNav && correctsQzssLayout() &&
        (sf.subframe == 4 || sf.subframe == 5)) {
        const std::int64_t line = plan.svIdLine(sf.subframe);
        if (line >= 0) {
            const auto id = static_cast<std::int32_t>(
                plan.readLine(static_cast<std::size_t>(line), writer.bits()));
            const std::int32_t byId = qzssLayoutOfSvId(id);
            if (byId != 0) {
                layoutId = byId;
                svId = id;
            }
        }
    }

    if (plan.hasSelection(sf, layoutId)) {
        const LegacyPlan::Parts parts = plan.selection(sf, layoutId);
        for (const Reader& r : parts.readers.first(parts.rawCount)) {
            plan.add(r, writer.received(), writer);
        }
        for (const Reader& r : parts.readers.subspan(parts.rawCount)) {
            plan.add(r, writer.bits(), writer);
        }
    } else {
        for (const bool rawPass : {true, false}) {
            const std::uint8_t* bits = rawPass ? writer.received() : writer.bits();
            signal.forEachLine(sf, layoutId, rawPass, true, [&](std::size_t i, const PlannedLine&) {
                plan.addLine(i, bits, writer);
            });
        }
    }
    const std::string* name = svId < 0 ? plan.layoutName(sf) : nullptr;
    if (name != nullptr) {
        writer.layout().assign(*name);
    } else {
        appendLegacyLayout(format, sf.subframe, sf.page, layoutId, svId, writer.layout());
    }
}

}  // namespace ZeltNavMsg::Records
