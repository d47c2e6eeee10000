// A host application that decodes from its own static initialiser, before main. The
// library's tables, interface objects and definition trees must be usable then,
// whichever translation unit the linker initialises first: with a static library this
// file's initialiser runs before the library's own. Exit status 0 when every listing
// made before main equals the one made in main.

#include <cstdio>
#include <exception>
#include <string>
#include <vector>

#include "support/SupportedFormats.h"
#include "zeltnavmsg/NavMessageDecoder.h"

namespace {

using ZeltNavMsg::NavMessageDecoder;
using ZeltNavMsg::Testing::kSupportedFormats;

std::vector<std::string> decodeEverySample() {
    std::vector<std::string> texts;
    for (const auto& row : kSupportedFormats) {
        try {
            texts.push_back(
                NavMessageDecoder::Decode(row.format, row.subframe, row.page, row.sampleHex));
        } catch (const std::exception& e) {
            texts.push_back(std::string("error: ") + e.what());
        }
    }
    return texts;
}

struct DecodedBeforeMain {
    std::vector<std::string> texts = decodeEverySample();
};

// The point of this program: a namespace-scope object whose constructor calls Decode.
const DecodedBeforeMain beforeMain;

}  // namespace

int main() {
    const std::vector<std::string> inMain = decodeEverySample();
    int failures = 0;
    for (std::size_t i = 0; i < inMain.size(); ++i) {
        const auto& row = kSupportedFormats[i];
        if (inMain[i].starts_with("error: ") || inMain[i] != beforeMain.texts[i]) {
            std::fprintf(stderr, "%.*s: before main \"%.60s\", in main \"%.60s\"\n",
                         static_cast<int>(row.name.size()), row.name.data(),
                         beforeMain.texts[i].c_str(), inMain[i].c_str());
            ++failures;
        }
    }
    std::printf("%zu formats decoded before main, %d differ\n", inMain.size(), failures);
    return failures == 0 && !inMain.empty() ? 0 : 1;
}
