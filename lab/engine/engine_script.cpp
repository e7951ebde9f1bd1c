#include "lab/engine/engine_script.h"

#include <cstdlib>

namespace lab {
namespace {

constexpr std::string_view kScriptFile = "LabEngine.ini";
constexpr std::string_view kJob = "Job";
constexpr std::string_view kCommands = "Commands";
constexpr std::string_view kAttempts = "Attempts";
constexpr std::string_view kDefaultAnswer = "402";

struct EndingWord {
  std::string_view word;
  JobEnding ending;
};
constexpr EndingWord kEndings[] = {
    {"success", JobEnding::kSuccess},     {"failure", JobEnding::kFailure},
    {"quota", JobEnding::kQuotaExceeded}, {"crash", JobEnding::kCrash},
    {"freeze", JobEnding::kFreeze},
};

int NumberOr(const std::string& text, int fallback) {
  return text.empty() ? fallback : std::atoi(text.c_str());
}

// Takes the text up to the separator off the front of `rest`, leading blanks left out.
std::string TakeWord(std::string_view& rest, char separator) {
  while (rest.starts_with(' ')) rest.remove_prefix(1);
  const std::size_t end = rest.find(separator);
  std::string word(rest.substr(0, end));
  rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  return word;
}

}  // namespace

CommandAnswer ParseAnswer(std::string_view text) {
  CommandAnswer answer;
  while (!text.empty()) {
    const std::string word = TakeWord(text, ' ');
    if (word == "slow") {
      answer.delay = static_cast<std::uint32_t>(NumberOr(TakeWord(text, ' '), 0));
    } else if (word == "redirect") {
      answer.redirect_port = TakeWord(text, ' ');
      answer.redirect_address = TakeWord(text, ' ');
    } else if (word == "crash") {
      answer.crash = true;
    } else if (word != "none") {
      answer.return_value = word;
    }
  }
  return answer;
}

EngineScript::EngineScript(const Ports& ports, const Places& places)
    : ports_(ports), path_(places.InInstallFolder(kScriptFile)) {}

std::string EngineScript::Read(std::string_view section, std::string_view key) const {
  return ports_.profile_files.ReadText(path_, section, key);
}

JobPlan EngineScript::Job() const {
  JobPlan plan;
  plan.files = NumberOr(Read(kJob, "Files"), plan.files);
  plan.interval =
      static_cast<std::uint32_t>(NumberOr(Read(kJob, "Interval"), static_cast<int>(plan.interval)));
  const std::string word = Read(kJob, "Ending");
  for (const EndingWord& entry : kEndings) {
    if (entry.word == word) plan.ending = entry.ending;
  }
  return plan;
}

CommandAnswer EngineScript::NextAnswer(int command) {
  const std::string key = std::to_string(command);
  const int attempt = NumberOr(Read(kAttempts, key), 0);
  ports_.profile_files.WriteText(path_, kAttempts, key, std::to_string(attempt + 1));

  const std::string answers = Read(kCommands, key);
  std::string_view rest = answers.empty() ? kDefaultAnswer : std::string_view(answers);
  std::string answer = TakeWord(rest, ',');
  for (int i = 0; i < attempt && !rest.empty(); ++i) answer = TakeWord(rest, ',');
  return ParseAnswer(answer);
}

}  // namespace lab
