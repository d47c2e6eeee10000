// The loop that bench/instructions.sh runs under callgrind: one output form of one
// format over its real messages in turn, after a warm-up pass that builds the plans
// and grows the reused storage. Only runLoop is counted (--toggle-collect), so the
// count divided by the message count is the cost of one message, start-up aside.
// It prints the number of messages of the format and the loop's count.
//
//   zeltnavmsg_instruction_loop FORMAT decode|fields|json [MESSAGES]
//
// FORMAT is a row name of kFormats in DecodeBench.cpp (GpsLNav, BeidouD2, ...).

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "BenchData.h"
#include "zeltnavmsg/DecodedMessage.h"
#include "zeltnavmsg/NavMessageDecoder.h"
#include "zeltnavmsg/RecordOutput.h"

namespace {

using ZeltNavMsg::NavMessageDecoder;
using ZeltNavMsg::Bench::Message;
using ZeltNavMsg::Bench::MessageFormat;

enum class Mode { Decode, Fields, Json };

struct Loop {
    MessageFormat format;
    Mode mode;
    const std::vector<Message>* messages;
    ZeltNavMsg::DecodedMessage record;
    ZeltNavMsg::RecordContext context;
    std::string json;
};

std::size_t one(Loop& loop, const Message& m) {
    switch (loop.mode) {
        case Mode::Decode:
            return NavMessageDecoder::Decode(loop.format, m.subframe, m.page, m.hex).size();
        case Mode::Fields:
            NavMessageDecoder::DecodeFields(loop.format, m.subframe, m.page, m.hex, loop.record);
            return loop.record.fields().size();
        case Mode::Json:
            NavMessageDecoder::DecodeFields(loop.format, m.subframe, m.page, m.hex, loop.record);
            loop.json.clear();
            ZeltNavMsg::AppendJsonRecord(loop.json, loop.record, loop.context);
            return loop.json.size();
    }
    return 0;
}

// Kept out of line under its own name: callgrind counts from its entry to its return.
[[gnu::noinline]] std::size_t runLoop(Loop& loop, std::size_t count) {
    std::size_t total = 0;
    for (std::size_t i = 0; i < count; ++i) {
        total += one(loop, (*loop.messages)[i % loop.messages->size()]);
    }
    return total;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fprintf(stderr, "usage: %s FORMAT decode|fields|json [MESSAGES]\n", argv[0]);
        return 2;
    }
    const ZeltNavMsg::Bench::BenchFormat* format = ZeltNavMsg::Bench::findFormat(argv[1]);
    if (format == nullptr) {
        std::fprintf(stderr, "unknown format %s\n", argv[1]);
        return 2;
    }
    Loop loop{format->format, Mode::Decode, nullptr, {}, {}, {}};
    if (std::strcmp(argv[2], "fields") == 0) {
        loop.mode = Mode::Fields;
    } else if (std::strcmp(argv[2], "json") == 0) {
        loop.mode = Mode::Json;
    } else if (std::strcmp(argv[2], "decode") != 0) {
        std::fprintf(stderr, "unknown mode %s\n", argv[2]);
        return 2;
    }
    const std::vector<Message> messages = ZeltNavMsg::Bench::loadMessages(format->dataFile);
    if (messages.empty()) {
        return 1;
    }
    loop.messages = &messages;
    loop.context.sat = "G05";
    const std::size_t count = argc > 3 ? std::strtoul(argv[3], nullptr, 10) : messages.size();
    for (const Message& m : messages) {  // warm-up, not counted
        one(loop, m);
    }
    std::printf("%zu %zu\n", messages.size(), runLoop(loop, count));
    return 0;
}
