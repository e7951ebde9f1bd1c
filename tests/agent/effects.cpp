#include "tests/agent/effects.h"

#include <algorithm>
#include <cctype>
#include <string>

#include "shared/character_shift.h"
#include "shared/keys.h"

namespace agent::testing {
namespace {

using platform::memory::JournalEntry;

constexpr std::size_t kStampLength = 19;  // "mm-dd-yyyy HH:mm:ss"
constexpr std::string_view kTrace = "TrayTraceFile.txt ";
constexpr std::string_view kQuestion = "  Label1 \"";
constexpr std::string_view kBox = "frmGeneralMessage";

// Keys that are kept with name and value shifted.
constexpr std::string_view kShiftedKeys[] = {
    shared::keys::kServerIp,        shared::keys::kPort,
    shared::keys::kRandom,          shared::keys::kPassword,
    shared::keys::kScheduleDisable,
};

std::string Behind(std::string_view text, std::string_view mark) {
  const std::size_t at = text.rfind(mark);
  return std::string(at == std::string_view::npos ? text : text.substr(at + mark.size()));
}

// "replace C:\Sorvane\x.txt 3 bytes" as "replace x.txt".
std::string ShortFile(std::string_view text) {
  const std::string_view verb = text.substr(0, text.find(' '));
  std::string name = Behind(text, "\\");
  if (verb != "remove") name = name.substr(0, name.find(' '));
  return std::string(verb) + " " + name;
}

std::string ShortTrace(std::string_view text) {
  std::string line = Behind(text, kTrace);
  if (line.size() > kStampLength && std::isdigit(static_cast<unsigned char>(line[0])) != 0) {
    line = line.substr(kStampLength);
  }
  for (const std::string_view prefix : {"[INFORMATION] ", "[ERROR] "}) {
    const std::size_t at = line.find(prefix);
    if (at != std::string::npos) line = line.substr(at + prefix.size());
  }
  return "trace " + line;
}

std::string Unshifted(std::string_view text) {
  return shared::ShiftCharacters(text, -shared::kProfileShift).text;
}

// "key=value" in plain words.
std::string ShortPair(std::string_view pair) {
  const std::size_t equals = pair.find('=');
  const std::string key = Unshifted(pair.substr(0, equals));
  if (std::ranges::find(kShiftedKeys, key) == std::end(kShiftedKeys)) return std::string(pair);
  return key + "=" + Unshifted(pair.substr(equals + 1));
}

std::string ShortProfile(std::string_view text) {
  const std::size_t open = text.find('[');
  const std::size_t close = text.find(']', open);
  return "write " + std::string(text.substr(open + 1, close - open - 1)) + "." +
         ShortPair(text.substr(close + 2));
}

// Questions, and windows that come and go; "" for all else.
std::string ShortForm(std::string_view text) {
  if (text.starts_with(kQuestion)) {
    const std::size_t length = text.size() - kQuestion.size() - 1;
    return "ask " + std::string(text.substr(kQuestion.size(), length));
  }
  const bool comes = text.starts_with("show ");
  if ((!comes && !text.starts_with("unload ")) || text.find(kBox) != std::string_view::npos) {
    return "";
  }
  return std::string(comes ? text.substr(0, text.find(" \"")) : text);
}

// "" for an entry that procedures are not compared by.
std::string Short(const JournalEntry& entry) {
  const std::string_view text = entry.text;
  const auto begins = [&](std::string_view word) { return text.substr(0, word.size()) == word; };
  if (entry.category == "profile") return ShortProfile(text);
  if (entry.category == "file") {
    if (begins("append ")) return ShortTrace(text);
    // A file that was not there is not asked for first.
    if (begins("remove ") && text.find(" failed") != std::string_view::npos) return "";
    return ShortFile(text);
  }
  if (entry.category == "registry") {
    return begins("create ") ? "" : "registry " + Behind(text, " ");
  }
  if (entry.category == "process") {
    return begins("terminate ") ? "end " + Behind(text, "terminate ") : "";
  }
  if (entry.category == "icon") return begins("tip") ? entry.text : "";
  if (entry.category == "form") return ShortForm(text);
  if (entry.category == "shell" || entry.category == "library" || entry.category == "window") {
    return entry.text;
  }
  return "";
}

}  // namespace

std::vector<std::string> Effects(InstalledAgent& agent) {
  std::vector<std::string> effects;
  for (const JournalEntry& entry : agent.machine.journal().entries()) {
    if (entry.who != "agent") continue;
    std::string line = Short(entry);
    if (!line.empty()) effects.push_back(std::move(line));
  }
  return effects;
}

}  // namespace agent::testing
