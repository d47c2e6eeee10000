#include "EncodeCommand.h"

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include <charconv>
#include <map>
#include <optional>
#include <string_view>

#include "Diagnostics.h"
#include "ExitStatus.h"
#include "FormatLookup.h"
#include "LineReader.h"
#include "Output.h"
#include "api/FormatNames.h"
#include "zeltnavmsg/MessageEncoder.h"
#include "zeltnavmsg/RecordOutput.h"

namespace Navmsg {

namespace {

using nlohmann::json;
using ZeltNavMsg::FieldInfo;
using ZeltNavMsg::MessageEncoder;
using ZeltNavMsg::MessageFormat;

// Why a message could not be made, reported at its place.
struct MessageError {
    std::string reason;
};

// One --set or --raw: a field (PATH or PATH[K], the K-th record of that path) and the
// text of its value.
struct Assignment {
    std::string key;
    std::int32_t part = 0;
    std::string value;
    bool raw = false;
};

std::optional<std::int64_t> parseInteger(std::string_view text) {
    std::int64_t n = 0;
    const char* end = text.data() + text.size();
    const auto [ptr, ec] = std::from_chars(text.data(), end, n);
    if (ec != std::errc() || ptr != end) {
        return std::nullopt;
    }
    return n;
}

// "Message data[2]": the key and the record's number; any other key is part 0.
std::pair<std::string, std::int32_t> splitPart(std::string_view key) {
    const std::size_t open = key.rfind('[');
    if (key.ends_with(']') && open != std::string_view::npos) {
        const std::optional<std::int64_t> part =
            parseInteger(key.substr(open + 1, key.size() - open - 2));
        if (part && *part >= 0 && *part <= INT32_MAX) {
            return {std::string(key.substr(0, open)), static_cast<std::int32_t>(*part)};
        }
    }
    return {std::string(key), 0};
}

Assignment parseAssignment(const std::string& text, bool raw) {
    const std::size_t equals = text.find('=');
    if (equals == std::string::npos || equals == 0) {
        throw UsageError{std::string(raw ? "--raw" : "--set") + " " + text +
                         ": expected PATH=VALUE"};
    }
    auto [key, part] = splitPart(std::string_view(text).substr(0, equals));
    return {std::move(key), part, text.substr(equals + 1), raw};
}

std::optional<double> parseNumber(std::string_view text) {
    double v = 0.0;
    const char* end = text.data() + text.size();
    const auto [ptr, ec] = std::from_chars(text.data(), end, v);
    if (ec != std::errc() || ptr != end) {
        return std::nullopt;
    }
    return v;
}

// Decimal, or hex after "0x".
std::optional<std::uint64_t> parseRaw(std::string_view text) {
    int base = 10;
    if (text.starts_with("0x") || text.starts_with("0X")) {
        text.remove_prefix(2);
        base = 16;
    }
    std::uint64_t v = 0;
    const char* end = text.data() + text.size();
    const auto [ptr, ec] = std::from_chars(text.data(), end, v, base);
    if (text.empty() || ec != std::errc() || ptr != end) {
        return std::nullopt;
    }
    return v;
}

// The code of a text that is one character up to U+00FF (its UTF-8, or a byte that is
// not UTF-8); none for any other text.
std::optional<std::uint32_t> characterCode(std::string_view text) {
    if (text.size() == 1) {
        return static_cast<unsigned char>(text[0]);
    }
    const auto lead = text.size() == 2 ? static_cast<unsigned char>(text[0]) : 0U;
    const auto next = text.size() == 2 ? static_cast<unsigned char>(text[1]) : 0U;
    if ((lead == 0xC2 || lead == 0xC3) && (next & 0xC0U) == 0x80) {
        return ((lead & 0x1FU) << 6) | (next & 0x3FU);
    }
    return std::nullopt;
}

void setText(MessageEncoder& encoder, const FieldInfo& field, std::string_view text) {
    if (field.kind == ZeltNavMsg::ValueKind::Character) {
        if (const std::optional<std::uint32_t> code = characterCode(text)) {
            encoder.set(field, *code);
            return;
        }
    }
    const std::optional<double> value = parseNumber(text);
    if (!value) {
        throw MessageError{std::string(field.path) + ": \"" + std::string(text) +
                           "\" is not a number"};
    }
    encoder.set(field, *value);
}

void apply(MessageEncoder& encoder, const Assignment& a) {
    const FieldInfo& field = encoder.field(a.key, a.part);
    if (!a.raw) {
        setText(encoder, field, a.value);
        return;
    }
    const std::optional<std::uint64_t> raw = parseRaw(a.value);
    if (!raw) {
        throw MessageError{std::string(field.path) + ": raw value \"" + a.value +
                           "\" is not a decimal or 0x hex number"};
    }
    encoder.setRaw(field, *raw);
}

std::optional<MessageFormat> formatByEnumerator(std::string_view name) {
    for (const ZeltNavMsg::Names::FormatEnumerator& row : ZeltNavMsg::Names::kFormatEnumerators) {
        if (row.name == name) {
            return row.format;
        }
    }
    return std::nullopt;
}

// The satellite a message names when none is given.
std::string_view defaultSat(MessageFormat format) {
    switch (format) {
        case MessageFormat::QzssLNav:
            return "J01";
        case MessageFormat::BeidouD1:
            return "C06";
        case MessageFormat::BeidouD2:
            return "C01";
        case MessageFormat::BeidouCNav1:
        case MessageFormat::BeidouCNav2:
            return "C19";
        case MessageFormat::Irnss:
            return "I01";
        default:
            return "G01";
    }
}

// JSON members, with what is wrong when they are not what a record holds.
const json* member(const json& object, const char* key) {
    const auto it = object.find(key);
    return it == object.end() || it->is_null() ? nullptr : &*it;
}

std::string stringMember(const json& object, const char* key) {
    const json* m = member(object, key);
    if (m == nullptr || !m->is_string()) {
        throw MessageError{std::string("\"") + key + "\" must be a string"};
    }
    return m->get<std::string>();
}

std::int32_t integerMember(const json& object, const char* key) {
    const json* m = member(object, key);
    if (m == nullptr) {
        return 0;
    }
    const bool fits = m->is_number_unsigned()
                          ? m->get<std::uint64_t>() <= INT32_MAX
                          : m->is_number_integer() && m->get<std::int64_t>() >= INT32_MIN &&
                                m->get<std::int64_t>() <= INT32_MAX;
    if (!fits) {
        throw MessageError{std::string("\"") + key + "\" must be a 32-bit integer"};
    }
    return m->get<std::int32_t>();
}

// A field of a record: to its raw bits when they read as its value (or no value is
// given), else to its value. An edited value wins over the raw bits it came with, and
// an untouched field keeps bits that its value alone would not give back (a negative
// zero, a code wider than a double).
void setField(MessageEncoder& encoder, const json& f, std::map<std::string, std::int32_t>& seen) {
    if (!f.is_object()) {
        throw MessageError{"a field must be an object"};
    }
    const json* path = member(f, "path");
    const json* key = path != nullptr ? path : member(f, "name");
    if (key == nullptr || !key->is_string()) {
        throw MessageError{R"(a field needs its "path" or "name" as a string)"};
    }
    const std::string name = key->get<std::string>();
    const FieldInfo& field = encoder.field(name, seen[name]++);
    if (field.role == ZeltNavMsg::FieldRole::Word) {
        return;  // the fields it holds come on their own
    }
    const std::string where(field.path);
    if (const json* units = member(f, "units")) {
        if (!units->is_string() || units->get<std::string>() != field.units) {
            throw MessageError{where + ": units " + units->dump() + " given; the field's are \"" +
                               std::string(field.units) + "\""};
        }
    }
    std::optional<std::uint64_t> raw;
    if (const json* r = member(f, "raw")) {
        raw = r->is_string() ? parseRaw("0x" + r->get<std::string>()) : std::nullopt;
        if (!raw) {
            throw MessageError{where + ": \"raw\" must be hex digits in a string"};
        }
    }
    const json* value = member(f, "value");
    std::optional<double> number;
    if (value != nullptr && value->is_string() && field.kind == ZeltNavMsg::ValueKind::Character) {
        const std::optional<std::uint32_t> code = characterCode(value->get<std::string>());
        if (!code) {
            throw MessageError{where + ": a character field takes one character, not " +
                               value->dump()};
        }
        number = *code;
    } else if (value != nullptr && (value->is_number() || value->is_boolean())) {
        number = value->is_boolean() ? (value->get<bool>() ? 1.0 : 0.0) : value->get<double>();
    } else if (value != nullptr) {
        throw MessageError{where + ": \"value\" must be a number, not " + value->dump()};
    }
    if (raw && (!number || MessageEncoder::valueOf(field, *raw) == *number)) {
        encoder.setRaw(field, *raw);
    } else if (number) {
        encoder.set(field, *number);
    } else {
        throw MessageError{where + R"(: the field has neither "value" nor "raw")"};
    }
}

// A record as decode and batch write it; `sat` gets the satellite it names.
MessageEncoder fromRecord(const json& record, std::string& sat) {
    if (!record.is_object()) {
        throw MessageError{"a record must be a JSON object"};
    }
    if (const json* error = member(record, "error")) {
        const json* text = error->is_object() ? member(*error, "message") : nullptr;
        throw MessageError{"the record of a message that failed to decode" +
                           (text != nullptr ? ": " + text->dump() : std::string())};
    }
    const std::string formatName = stringMember(record, "format");
    MessageFormat format{};
    if (member(record, "sat") != nullptr) {
        sat = stringMember(record, "sat");
        format = resolveFormat(sat, formatName);
    } else if (const std::optional<MessageFormat> f = formatByEnumerator(formatName)) {
        format = *f;
        sat = defaultSat(format);
    } else {
        throw MessageError{"\"format\": " + formatName +
                           " names a format only with \"sat\"; or give its MessageFormat name"};
    }
    MessageEncoder encoder(format, integerMember(record, "subframe"),
                           integerMember(record, "page"));
    if (const json* fields = member(record, "fields")) {
        if (!fields->is_array()) {
            throw MessageError{"\"fields\" must be an array"};
        }
        std::map<std::string, std::int32_t> seen;
        for (const json& f : *fields) {
            setField(encoder, f, seen);
        }
    }
    return encoder;
}

// "column 12: syntax error ..." from nlohmann's "[json.exception.parse_error.101] parse
// error at line 1, column 12: syntax error ...".
std::string jsonReason(const json::exception& e) {
    std::string_view what = e.what();
    if (const std::size_t close = what.find("] "); close != std::string_view::npos) {
        what.remove_prefix(close + 2);
    }
    if (what.starts_with("parse error at line 1, ")) {
        what.remove_prefix(std::string_view("parse error at line 1, ").size());
    }
    return "not a JSON record: " + std::string(what);
}

}  // namespace

EncodeCommand::EncodeCommand(CLI::App& app)
    : command_(app.add_subcommand(
          "encode",
          "Make messages from field values: JSON Lines as decode and batch write them, or "
          "--format and --set")) {
    CLI::Option* format =
        command_->add_option("--format", format_,
                             "Message format: a MessageFormat name such as GpsLNav, BeidouCNav2 "
                             "(or a system's name such as LNAV, D1 with --sat)");
    command_->add_option("--sat", sat_, "Satellite name (default per format: G01, J01, C06, ...)")
        ->needs(format);
    command_->add_option("--subframe", subframe_, "Subframe number (default 0)")->needs(format);
    command_->add_option("--page", page_, "Page number (default 0)")->needs(format);
    command_->add_option("--from", from_, "Start from these bits (hex) instead of all zeros")
        ->needs(format);
    command_
        ->add_option("--set", sets_,
                     "PATH=VALUE: a field (path or name; PATH[K] the K-th record of a path) "
                     "to a value in its units; a character field takes a character")
        ->allow_extra_args(false);
    command_->add_option("--raw", raws_, "PATH=RAW: a field to raw bits, decimal or 0x hex")
        ->allow_extra_args(false);
    command_->add_flag("--keep-checks", keepChecks_,
                       "Keep parity, BCH and CRC bits as given instead of computing them");
    command_->add_option("--flip", flips_, "Flip bit BIT (0 = first) after encoding")
        ->allow_extra_args(false);
    command_->add_flag("--hex", hexOnly_, "Write the hex only, not 'SAT FORMAT SUBFRAME PAGE HEX'");
    command_
        ->add_option("FILE", path_,
                     "JSON Lines as 'navmsg decode|batch --output json' write them (default: "
                     "standard input unless --format is given)")
        ->excludes(format);
    command_->footer(
        std::string("--set and --raw apply in the order given, after a record's fields: set a "
                    "frame format's\nselector (Page ID, MesType, Subframe ID, Message ID) "
                    "first. A record decoded with\n--all-fields encodes back bit for bit.\n\n"
                    "Examples:\n"
                    "  navmsg encode --format GpsLNav --subframe 1 --set preamble=139 "
                    "--set subframe_id=1 --set af0=1e-4\n"
                    "  navmsg batch --output json --all-fields log.txt | jq -c '...' | "
                    "navmsg encode > edited.txt\n"
                    "\n") +
        std::string(kExitStatusHelp));
}

bool EncodeCommand::selected() const {
    return command_->parsed();
}

int EncodeCommand::run(Output& out) const {
    // --set and --raw in the order given.
    std::vector<Assignment> assignments;
    std::size_t nextSet = 0;
    std::size_t nextRaw = 0;
    for (const CLI::Option* option : command_->parse_order()) {
        if (option->get_name() == "--set" && nextSet < sets_.size()) {
            assignments.push_back(parseAssignment(sets_[nextSet++], false));
        } else if (option->get_name() == "--raw" && nextRaw < raws_.size()) {
            assignments.push_back(parseAssignment(raws_[nextRaw++], true));
        }
    }

    Diagnostics diagnostics(out, true);
    std::string line;
    std::string hex;
    // Command-line fields, protection, flips and the output line of one message.
    const auto finish = [&](MessageEncoder& encoder, std::string_view sat) {
        for (const Assignment& a : assignments) {
            apply(encoder, a);
        }
        encoder.hex(hex,
                    keepChecks_ ? ZeltNavMsg::CheckBits::Keep : ZeltNavMsg::CheckBits::Recompute);
        for (const std::int32_t bit : flips_) {
            if (bit < 0 || bit >= encoder.bitCount()) {
                throw MessageError{"--flip " + std::to_string(bit) +
                                   ": the message has bits 0 to " +
                                   std::to_string(encoder.bitCount() - 1)};
            }
            char& digit = hex[static_cast<std::size_t>(bit / 4)];
            const int value = (digit <= '9' ? digit - '0' : digit - 'a' + 10) ^ (8 >> (bit % 4));
            digit = "0123456789abcdef"[value];
        }
        line.clear();
        if (!hexOnly_) {
            line.append(sat).append(" ").append(ZeltNavMsg::MessageFormatName(encoder.format()));
            line.append(" ").append(std::to_string(encoder.subframe()));
            line.append(" ").append(std::to_string(encoder.page())).append(" ");
        }
        line.append(hex);
        out.put(line);
        out.lineEnd();
    };
    const auto attempt = [&](Place place, auto&& make) {
        try {
            make();
        } catch (const MessageError& e) {
            diagnostics.failure(place, e.reason);
        } catch (const json::exception& e) {
            diagnostics.failure(place, jsonReason(e));
        } catch (const std::exception& e) {
            diagnostics.failure(place, e.what());
        }
    };

    if (!format_.empty()) {
        MessageFormat format{};
        std::string sat = sat_;
        if (sat.empty()) {
            const std::optional<MessageFormat> f = formatByEnumerator(format_);
            if (!f) {
                throw UsageError{"--format " + format_ +
                                 " is a system's name: give --sat too, or a MessageFormat name "
                                 "such as GpsLNav"};
            }
            format = *f;
            sat = defaultSat(format);
        } else {
            try {
                format = resolveFormat(sat, format_);
            } catch (const std::exception& e) {
                throw UsageError{e.what()};
            }
        }
        attempt(Place{}, [&] {
            std::optional<MessageEncoder> encoder;
            try {
                encoder = from_.empty() ? MessageEncoder(format, subframe_, page_)
                                        : MessageEncoder(format, subframe_, page_, from_);
            } catch (const std::exception& e) {
                throw MessageError{(from_.empty() ? "" : "--from: ") + std::string(e.what())};
            }
            finish(*encoder, sat);
        });
        return diagnostics.failed() ? kExitFailedMessage : kExitOk;
    }

    LineReader reader(path_.empty() ? "-" : path_);
    for (LineReader::Line input; reader.next(input);) {
        const Place place = Place::line(input.number);
        if (input.tooLong) {
            diagnostics.failure(
                place, "line longer than " + std::to_string(LineReader::kMaxLine) + " bytes");
            continue;
        }
        if (input.text.find_first_not_of(" \t\r\v\f") == std::string_view::npos) {
            continue;
        }
        attempt(place, [&] {
            std::string sat;
            MessageEncoder encoder = fromRecord(json::parse(input.text), sat);
            finish(encoder, sat);
        });
    }
    return diagnostics.failed() ? kExitFailedMessage : kExitOk;
}

}  // namespace Navmsg
