#include "CheckReport.h"

#include <algorithm>
#include <vector>

#include "Diagnostics.h"
#include "zeltnavmsg/RecordOutput.h"

namespace Navmsg {

using ZeltNavMsg::CheckResult;
using ZeltNavMsg::CheckStatus;

namespace {

// What a format's checks are of, by the name of its checks.
std::string_view unitsOf(std::string_view checkName) {
    if (checkName.ends_with("parity")) {
        return "words";
    }
    if (checkName.find("BCH") != std::string_view::npos) {
        return "codewords";
    }
    return "CRC blocks";
}

void appendList(std::string& line, std::string_view label,
                const std::vector<const CheckResult*>& checks, bool withBit) {
    if (checks.empty()) {
        return;
    }
    if (line.size() > 8) {
        line.append("; ");
    }
    line.append(label);
    for (std::size_t i = 0; i < checks.size(); ++i) {
        line.append(i == 0 ? " " : ", ").append(checks[i]->name);
        if (withBit) {
            line.append(" (bit ").append(std::to_string(checks[i]->correctedBit)).append(")");
        }
    }
}

}  // namespace

std::string checksLine(const ZeltNavMsg::DecodedMessage& message) {
    std::vector<const CheckResult*> failed;
    std::vector<const CheckResult*> corrected;
    std::vector<const CheckResult*> incomplete;
    for (const CheckResult& c : message.checks()) {
        if (c.status == CheckStatus::Fail) {
            failed.push_back(&c);
        } else if (c.status == CheckStatus::Corrected) {
            corrected.push_back(&c);
        } else if (c.status == CheckStatus::Incomplete) {
            incomplete.push_back(&c);
        }
    }
    std::string line = "Checks: ";
    if (message.checks().empty()) {
        return line + "none";
    }
    if (failed.empty() && corrected.empty() && incomplete.empty()) {
        const std::size_t count = message.checks().size();
        std::string_view units = unitsOf(message.checks().front().name);
        if (count == 1) {
            units.remove_suffix(1);  // "1 CRC block"
        }
        return line + "ok (" + std::to_string(count) + " " + std::string(units) + ")";
    }
    appendList(line, "FAILED", failed, false);
    appendList(line, "corrected", corrected, true);
    appendList(line, "incomplete", incomplete, false);
    return line;
}

void CheckSummary::add(const ZeltNavMsg::DecodedMessage& message) {
    Counts& counts = formats_[ZeltNavMsg::MessageFormatName(message.format())];
    ++counts.messages;
    bool failed = false;
    bool corrected = false;
    bool incomplete = false;
    for (const CheckResult& c : message.checks()) {
        failed = failed || c.status == CheckStatus::Fail;
        corrected = corrected || c.status == CheckStatus::Corrected;
        incomplete = incomplete || c.status == CheckStatus::Incomplete;
        if (!c.ok()) {
            ++failedChecks_[c.name];
        }
    }
    counts.failed += failed ? 1 : 0;
    counts.corrected += !failed && corrected ? 1 : 0;
    counts.incomplete += !failed && !corrected && incomplete ? 1 : 0;
}

void CheckSummary::report(Diagnostics& diagnostics) const {
    Counts total;
    for (const auto& [format, counts] : formats_) {
        total.messages += counts.messages;
        total.failed += counts.failed;
        total.corrected += counts.corrected;
        total.incomplete += counts.incomplete;
    }
    const auto describe = [](const Counts& c) {
        std::string text = std::to_string(c.messages) + " messages, " +
                           std::to_string(c.messages - c.failed - c.corrected - c.incomplete) +
                           " intact, " + std::to_string(c.failed) + " failed";
        if (c.corrected > 0) {
            text += ", " + std::to_string(c.corrected) + " corrected";
        }
        if (c.incomplete > 0) {
            text += ", " + std::to_string(c.incomplete) + " incomplete";
        }
        return text;
    };
    diagnostics.report({}, "checks: " + describe(total));
    for (const auto& [format, counts] : formats_) {
        diagnostics.report({}, "  " + std::string(format) + ": " + describe(counts));
    }
    if (failedChecks_.empty()) {
        return;
    }
    std::vector<std::pair<std::string_view, long>> most(failedChecks_.begin(), failedChecks_.end());
    std::stable_sort(most.begin(), most.end(),
                     [](const auto& a, const auto& b) { return a.second > b.second; });
    std::string text = "  most often not ok:";
    for (std::size_t i = 0; i < most.size() && i < 5; ++i) {
        text.append(i == 0 ? " " : ", ")
            .append(most[i].first)
            .append(" (")
            .append(std::to_string(most[i].second))
            .append(")");
    }
    diagnostics.report({}, text);
}

}  // namespace Navmsg
