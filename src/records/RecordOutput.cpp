#include "zeltnavmsg/RecordOutput.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstring>

#include "records/FieldDetail.h"
#include "text/NumberText.h"

namespace ZeltNavMsg {

namespace {

constexpr std::array<std::string_view, 5> kKinds = {"unsigned", "signed", "real", "flag",
                                                    "character"};
constexpr std::array<std::string_view, 4> kRoles = {"data", "reserved", "check", "word"};
constexpr char kHexDigits[] = "0123456789ABCDEF";

void appendInteger(std::string& out, std::int64_t n) {
    char digits[24];
    const auto r = std::to_chars(digits, digits + sizeof digits, n);
    out.append(digits, r.ptr);
}

}  // namespace

namespace Records {

// The shortest text that reads back as the same double, as std::to_chars writes it.
// Most values are integers (counts, flags, seconds): their digits are that text
// unless the exponent form is shorter ("1e+05" for 100000), so they skip the general
// algorithm.
char* writeShortest(char* p, double v) noexcept {
    constexpr double kExact = 9007199254740992.0;  // 2^53
    if (v > -kExact && v < kExact) {
        const auto n = static_cast<std::int64_t>(v);
        if (static_cast<double>(n) == v && !(n == 0 && std::signbit(v))) {
            char digits[24];
            const auto r = std::to_chars(digits, digits + sizeof digits, n < 0 ? -n : n);
            const auto count = static_cast<int>(r.ptr - digits);
            int significant = count;
            while (significant > 1 && digits[significant - 1] == '0') {
                --significant;
            }
            // d[.ddd]e+XX: the exponent of an integer below 2^53 has two digits.
            const int exponentForm = (significant == 1 ? 1 : significant + 1) + 4;
            if (count <= exponentForm) {
                if (n < 0) {
                    *p++ = '-';
                }
                std::memcpy(p, digits, static_cast<std::size_t>(count));
                return p + count;
            }
        }
    }
    // Up to three decimals (times of week in milliseconds, values of a few LSBs): below
    // 2^31 the double nearest m/1000 lies within 2.4e-7 of it, so any other text that
    // reads back needs digits down to 1e-7 and is longer; with a fraction the fixed form
    // is never longer than the exponent form. So m/1000 without trailing zeros is what
    // std::to_chars writes.
    constexpr double kFixedRange = 2147483648.0;  // 2^31
    if (v > -kFixedRange && v < kFixedRange) {
        const double scaled = v * 1000.0;
        const auto m = static_cast<std::int64_t>(scaled < 0 ? scaled - 0.5 : scaled + 0.5);
        if (m % 1000 != 0 && static_cast<double>(m) / 1000.0 == v) {
            std::uint64_t magnitude =
                m < 0 ? static_cast<std::uint64_t>(-m) : static_cast<std::uint64_t>(m);
            if (m < 0) {
                *p++ = '-';
            }
            p = std::to_chars(p, p + 16, magnitude / 1000).ptr;
            *p++ = '.';
            magnitude %= 1000;
            int digits = 3;
            for (; magnitude % 10 == 0; magnitude /= 10) {
                --digits;
            }
            for (int i = digits - 1; i >= 0; --i, magnitude /= 10) {
                p[i] = static_cast<char>('0' + magnitude % 10);
            }
            return p + digits;
        }
    }
    return std::to_chars(p, p + 32, v).ptr;
}

}  // namespace Records

void AppendNumber(std::string& out, double value) {
    char digits[32];
    out.append(digits, Records::writeShortest(digits, value));
}

namespace {

void appendNumber(std::string& out, double v) {
    char digits[32];
    out.append(digits, Records::writeShortest(digits, v));
}

// `digits` upper-case hex digits of the low bits of `v`.
void appendHex(std::string& out, std::uint64_t v, std::int32_t digits) {
    char text[16];
    const std::int32_t n = digits < 1 ? 1 : digits > 16 ? 16 : digits;
    for (std::int32_t i = n - 1; i >= 0; --i, v >>= 4) {
        text[i] = kHexDigits[v & 0xF];
    }
    out.append(text, static_cast<std::size_t>(n));
}

// A JSON string. Bytes from 0x80 up are Latin-1 characters (a broadcast character
// can be any byte) and are escaped, so that the output is ASCII whatever was sent.
void appendJsonString(std::string& out, std::string_view s) {
    out.push_back('"');
    std::size_t plain = 0;
    for (std::size_t i = 0; i < s.size(); ++i) {
        const auto c = static_cast<unsigned char>(s[i]);
        if (c >= 0x20 && c < 0x80 && c != '"' && c != '\\') {
            continue;
        }
        out.append(s.substr(plain, i - plain));
        plain = i + 1;
        switch (c) {
            case '"':
                out.append("\\\"");
                break;
            case '\\':
                out.append("\\\\");
                break;
            case '\n':
                out.append("\\n");
                break;
            case '\r':
                out.append("\\r");
                break;
            case '\t':
                out.append("\\t");
                break;
            default: {
                const char escape[6] = {
                    '\\', 'u', '0', '0', kHexDigits[c >> 4], kHexDigits[c & 0xF]};
                out.append(escape, sizeof escape);
                break;
            }
        }
    }
    out.append(s.substr(plain));
    out.push_back('"');
}

void appendJsonBits(std::string& out, std::span<const BitSegment> bits) {
    out.push_back('[');
    for (std::size_t i = 0; i < bits.size(); ++i) {
        out.append(i == 0 ? "[" : ",[");
        appendInteger(out, bits[i].first);
        out.push_back(',');
        appendInteger(out, bits[i].count);
        out.push_back(']');
    }
    out.push_back(']');
}

bool shown(const DecodedField& f, const RecordOptions& options) {
    return options.allFields || f.role() == FieldRole::Data;
}

// A character field's byte as text: itself for JSON (escaped there), and for CSV its
// Latin-1 code point in UTF-8.
std::string_view characterOf(const DecodedField& f, char (&buffer)[2], bool utf8) {
    const auto c = static_cast<unsigned char>(f.raw() & 0xFF);
    if (!utf8 || c < 0x80) {
        buffer[0] = static_cast<char>(c);
        return {buffer, 1};
    }
    buffer[0] = static_cast<char>(0xC0 | (c >> 6));
    buffer[1] = static_cast<char>(0x80 | (c & 0x3F));
    return {buffer, 2};
}

// A CSV cell: quoted (quotes doubled) when it holds a comma, quote or line break.
void appendCsvCell(std::string& out, std::string_view s) {
    if (s.find_first_of(",\"\r\n") == std::string_view::npos) {
        out.append(s);
        return;
    }
    out.push_back('"');
    for (const char c : s) {
        if (c == '"') {
            out.push_back('"');
        }
        out.push_back(c);
    }
    out.push_back('"');
}

// Writes JSON text into a buffer on the stack, appended to the string a block at a
// time: a piece of known bound is copied or formatted at a pointer after one check
// of the room left, instead of growing the string piece by piece.
class JsonWriter {
  public:
    static constexpr std::size_t kSize = 4096;
    // Pieces longer than this go to the string directly.
    static constexpr std::size_t kLong = kSize / 8;

    // buffer_ stays uninitialised: nothing is read before it is written.
    // cppcheck-suppress uninitMemberVar
    explicit JsonWriter(std::string& out) noexcept : out_(out) {}
    JsonWriter(const JsonWriter&) = delete;
    JsonWriter& operator=(const JsonWriter&) = delete;
    ~JsonWriter() { flush(); }

    // Makes room for `n` (at most kSize / 2) characters.
    void room(std::size_t n) {
        if (static_cast<std::size_t>(buffer_ + kSize - p_) < n) [[unlikely]] {
            flush();
        }
    }
    [[gnu::noinline]] void flush() {
        out_.append(buffer_, p_);
        p_ = buffer_;
    }

    void put(std::string_view s) {
        if (s.size() > kLong) [[unlikely]] {
            putLong(s);
            return;
        }
        room(s.size());
        std::memcpy(p_, s.data(), s.size());
        p_ += s.size();
    }
    void put(char c) {
        room(1);
        *p_++ = c;
    }
    void integer(std::int64_t n) {
        room(kNumber);
        p_ = Text::writeSigned(p_, n);
    }
    void number(double v) {
        room(kNumber);
        p_ = Records::writeShortest(p_, v);
    }
    // `digits` upper-case hex digits of the low bits of `v` (1 to 16).
    void hex(std::uint64_t v, std::int32_t digits) {
        room(kNumber);
        p_ = Text::writeHexDigits(p_, v, digits < 1 ? 1 : digits > 16 ? 16 : digits);
    }
    // A JSON string, escaped as appendJsonString escapes it; eight characters at a
    // time up to the first that needs an escape, the last eight overlapping the block
    // before them. The position is kept in a register: a store through `p_` would have
    // it reloaded after every character.
    void string(std::string_view s) {
        if (s.size() > kLong) [[unlikely]] {
            flush();
            appendJsonString(out_, s);
            return;
        }
        room(6 * s.size() + 2);
        char* p = p_;
        *p++ = '"';
        const char* from = s.data();
        const char* const end = from + s.size();
        if (s.size() >= 8) {
            std::uint64_t block = 0;
            while (end - from >= 8) {
                std::memcpy(&block, from, 8);
                if (needsEscape(block)) {
                    break;
                }
                std::memcpy(p, &block, 8);
                p += 8;
                from += 8;
            }
            if (from != end && end - from < 8) {
                std::memcpy(&block, end - 8, 8);
                if (!needsEscape(block)) {
                    std::memcpy(p - (8 - (end - from)), &block, 8);
                    p += end - from;
                    from = end;
                }
            }
        }
        for (; from != end; ++from) {
            const auto c = static_cast<unsigned char>(*from);
            if (c >= 0x20 && c < 0x80 && c != '"' && c != '\\') {
                *p++ = *from;
                continue;
            }
            *p++ = '\\';
            switch (c) {
                case '"':
                    *p++ = '"';
                    break;
                case '\\':
                    *p++ = '\\';
                    break;
                case '\n':
                    *p++ = 'n';
                    break;
                case '\r':
                    *p++ = 'r';
                    break;
                case '\t':
                    *p++ = 't';
                    break;
                default:
                    p[0] = 'u';
                    p[1] = '0';
                    p[2] = '0';
                    p[3] = kHexDigits[c >> 4];
                    p[4] = kHexDigits[c & 0xF];
                    p += 5;
                    break;
            }
        }
        *p++ = '"';
        p_ = p;
    }
    // [[first,count],...]: a BeiDou codeword's bits are fifteen one-bit segments, so a
    // step is a few stores, bit positions below 1000 written from the digit pairs.
    void bits(std::span<const BitSegment> segments) {
        if (segments.empty()) {
            put("[]");
            return;
        }
        char separator = '[';  // the opening bracket before the first, then commas
        constexpr std::size_t kChunk = 32;
        for (std::size_t first = 0; first < segments.size(); first += kChunk) {
            const std::size_t count = std::min(kChunk, segments.size() - first);
            room(count * (2 * kNumber + 4));
            char* p = p_;
            for (const BitSegment& segment : segments.subspan(first, count)) {
                p[0] = separator;
                p[1] = '[';
                separator = ',';
                p = smallNumber(p + 2, segment.first);
                *p++ = ',';
                p = smallNumber(p, segment.count);
                *p++ = ']';
            }
            p_ = p;
        }
        put(']');
    }

    // A check's record after its name.
    void check(const CheckResult& c) {
        room(kCheckRoom);
        char* p = p_;
        p = c.ok() ? copy(p, R"(,"ok":true)") : copy(p, R"(,"ok":false)");
        if (c.status == CheckStatus::Incomplete) {
            p = copy(p, R"(,"incomplete":true)");
        }
        p_ = copy(p, R"(,"bits":)");
        bits(c.bits);
        room(kCheckRoom);
        p = p_;
        const std::int32_t digits = std::clamp((c.checkBits + 3) / 4, 1, 16);
        p = Text::writeHexDigits(copy(p, R"(,"computed":")"), c.computed, digits);
        p = Text::writeHexDigits(copy(p, R"(","received":")"), c.received, digits);
        *p++ = '"';
        if (c.correctedBit >= 0) {
            p = Text::writeSigned(copy(p, R"(,"corrected":)"), c.correctedBit);
        }
        *p++ = '}';
        p_ = p;
    }

  private:
    // What the constant pieces of a check take, and its two hex numbers and corrected
    // bit with what their writers store past their text.
    static constexpr std::size_t kCheckRoom = 160;

    // A literal's characters at `p`, a copy of known size.
    template <std::size_t N>
    static char* copy(char* p, const char (&text)[N]) noexcept {
        std::memcpy(p, text, N - 1);
        return p + N - 1;
    }

    // What writeShortest, an integer or hex digits take, with what the writers store
    // past their text.
    static constexpr std::size_t kNumber = 40;

    // `v` in decimal; below 1000 without a division loop.
    static char* smallNumber(char* p, std::int32_t v) noexcept {
        if (v < 0 || v >= 1000) [[unlikely]] {
            return Text::writeSigned(p, v);
        }
        const auto u = static_cast<std::uint32_t>(v);
        if (u < 10) {
            *p = static_cast<char>('0' + u);
            return p + 1;
        }
        if (u < 100) {
            std::memcpy(p, Text::Detail::kDigitPairs + 2 * std::size_t{u}, 2);
            return p + 2;
        }
        *p = static_cast<char>('0' + u / 100);
        std::memcpy(p + 1, Text::Detail::kDigitPairs + 2 * std::size_t{u % 100}, 2);
        return p + 3;
    }

    [[gnu::noinline]] void putLong(std::string_view s) {
        flush();
        out_.append(s);
    }

    // Whether any of eight bytes is below 0x20, from 0x80 up, '"' or '\\' (exact for
    // the eight together: no borrow reaches a byte from one that tests true).
    static constexpr bool needsEscape(std::uint64_t x) noexcept {
        constexpr std::uint64_t kOnes = 0x0101010101010101U;
        constexpr std::uint64_t kHigh = 0x8080808080808080U;
        const auto below = [&](std::uint64_t v, std::uint64_t n) { return (v - kOnes * n) & ~v; };
        const std::uint64_t quote = x ^ (kOnes * '"');
        const std::uint64_t backslash = x ^ (kOnes * '\\');
        return ((below(x, 0x20) | below(quote, 1) | below(backslash, 1) | x) & kHigh) != 0;
    }

    std::string& out_;
    char* p_ = buffer_;
    char buffer_[kSize];
};

}  // namespace

namespace Records {

void describeForOutput(const FieldInfo& info, FieldDetail& detail) {
    std::string head = "{\"path\":";
    appendJsonString(head, info.path);
    head.append(",\"name\":");
    appendJsonString(head, info.name);
    head.append(R"(,"kind":")");
    head.append(kKinds[static_cast<std::size_t>(info.kind)]);
    detail.jsonHead = head;
    detail.jsonHead.append(R"(","value":)");
    detail.jsonHeadWithRole = head;
    detail.jsonHeadWithRole.append(R"(","role":")");
    detail.jsonHeadWithRole.append(kRoles[static_cast<std::size_t>(info.role)]);
    detail.jsonHeadWithRole.append(R"(","value":)");
    detail.jsonMid.assign(",\"units\":");
    appendJsonString(detail.jsonMid, info.units);
    detail.jsonMid.append(R"(,"raw":")");
    detail.jsonTail.assign(R"(","bits":)");
    appendJsonBits(detail.jsonTail, info.bits);
    detail.jsonTail.push_back('}');

    detail.csvNames.clear();
    appendCsvCell(detail.csvNames, info.path);
    detail.csvNames.push_back(',');
    appendCsvCell(detail.csvNames, info.name);
    detail.csvNames.push_back(',');
    detail.csvUnits.assign(1, ',');
    appendCsvCell(detail.csvUnits, info.units);
    detail.csvUnits.push_back(',');
}

}  // namespace Records

std::string_view MessageFormatName(MessageFormat format) noexcept {
    switch (format) {
        case MessageFormat::GpsLNav:
            return "GpsLNav";
        case MessageFormat::GpsCNav2:
            return "GpsCNav2";
        case MessageFormat::CNav:
            return "CNav";
        case MessageFormat::GlonassFdma:
            return "GlonassFdma";
        case MessageFormat::GalileoINav:
            return "GalileoINav";
        case MessageFormat::GalileoFNav:
            return "GalileoFNav";
        case MessageFormat::BeidouD1:
            return "BeidouD1";
        case MessageFormat::BeidouD2:
            return "BeidouD2";
        case MessageFormat::BeidouCNav1:
            return "BeidouCNav1";
        case MessageFormat::BeidouCNav2:
            return "BeidouCNav2";
        case MessageFormat::QzssLNav:
            return "QzssLNav";
        case MessageFormat::Irnss:
            return "Irnss";
        case MessageFormat::Sbas:
            return "Sbas";
    }
    return "";
}

void AppendJsonRecord(std::string& out, const DecodedMessage& message, const RecordContext& context,
                      const RecordOptions& options) {
    JsonWriter json(out);

    json.put('{');
    if (context.line > 0) {
        json.put("\"line\":");
        json.integer(context.line);
        json.put(',');
    }
    json.put("\"sat\":");
    json.string(context.sat);
    if (!context.signal.empty()) {
        json.put(",\"signal\":");
        json.string(context.signal);
    }
    if (context.hasTime) {
        json.put(R"(,"time":{"week":)");
        json.integer(context.week);
        json.put(",\"tow\":");
        json.number(context.tow);
        json.put('}');
    }
    json.put(",\"format\":");
    json.string(MessageFormatName(message.format()));
    json.put(",\"subframe\":");
    json.integer(message.subframe());
    json.put(",\"page\":");
    json.integer(message.page());
    json.put(",\"layout\":");
    json.string(message.layout());
    json.put(",\"fields\":[");
    bool first = true;
    for (const DecodedField& f : message.fields()) {
        if (!shown(f, options)) {
            continue;
        }
        const auto& text = *static_cast<const Records::FieldDetail*>(f.info().detail);
        if (!first) {
            json.put(',');
        }
        first = false;
        json.put(options.allFields ? text.jsonHeadWithRole : text.jsonHead);
        if (f.kind() == ValueKind::Character) {
            char buffer[2];
            json.string(characterOf(f, buffer, false));
        } else {
            json.number(f.value());
        }
        json.put(text.jsonMid);
        json.hex(f.raw(), (f.bitCount() + 3) / 4);
        json.put(text.jsonTail);
    }
    json.put("],\"checks\":[");
    first = true;
    for (const CheckResult& c : message.checks()) {
        json.put(first ? std::string_view("{\"name\":") : std::string_view(",{\"name\":"));
        first = false;
        json.string(c.name);
        json.check(c);
    }
    json.put(message.ok() ? std::string_view("],\"ok\":true}\n")
                          : std::string_view("],\"ok\":false}\n"));
}

void AppendJsonError(std::string& out, std::int64_t line, std::string_view type,
                     std::string_view message) {
    out.push_back('{');
    if (line > 0) {
        out.append("\"line\":");
        appendInteger(out, line);
        out.push_back(',');
    }
    out.append(R"("error":{"type":)");
    appendJsonString(out, type);
    out.append(",\"message\":");
    appendJsonString(out, message);
    out.append("}}\n");
}

std::string_view CsvHeader(bool log) noexcept {
    return log ? "line,sat,format,subframe,page,path,name,value,units,raw,ok,signal,week,tow\n"
               : "line,sat,format,subframe,page,path,name,value,units,raw,ok\n";
}

void AppendCsvRows(std::string& out, const DecodedMessage& message, const RecordContext& context,
                   const RecordOptions& options) {
    // What every row of the message starts with, once.
    std::string head;
    if (context.line > 0) {
        appendInteger(head, context.line);
    }
    head.push_back(',');
    appendCsvCell(head, context.sat);
    head.push_back(',');
    head.append(MessageFormatName(message.format()));
    head.push_back(',');
    appendInteger(head, message.subframe());
    head.push_back(',');
    appendInteger(head, message.page());
    head.push_back(',');
    std::string verdict = message.ok() ? "true" : "false";
    if (!context.signal.empty()) {
        verdict.push_back(',');
        appendCsvCell(verdict, context.signal);
        verdict.push_back(',');
        if (context.hasTime) {
            appendInteger(verdict, context.week);
            verdict.push_back(',');
            appendNumber(verdict, context.tow);
        } else {
            verdict.push_back(',');
        }
    }
    verdict.push_back('\n');
    for (const DecodedField& f : message.fields()) {
        if (!shown(f, options)) {
            continue;
        }
        const auto& text = *static_cast<const Records::FieldDetail*>(f.info().detail);
        out.append(head);
        out.append(text.csvNames);
        if (f.kind() == ValueKind::Character) {
            // Always quoted, so that a blank or a control character stays one cell.
            char buffer[2];
            const std::string_view c = characterOf(f, buffer, true);
            out.push_back('"');
            out.append(c == "\"" ? std::string_view("\"\"") : c);
            out.push_back('"');
        } else {
            appendNumber(out, f.value());
        }
        out.append(text.csvUnits);
        appendHex(out, f.raw(), (f.bitCount() + 3) / 4);
        out.push_back(',');
        out.append(verdict);
    }
}

}  // namespace ZeltNavMsg
