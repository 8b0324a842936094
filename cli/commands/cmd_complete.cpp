// orv3cal complete -- WORD...: what the last of these words may become, for the shells: a candidate
// a line, its meaning behind a tab.

#include <algorithm>
#include <memory>

#include "commands.h"
#include "options/completion.h"
#include "output/output.h"
#include "output/streams.h"

namespace orv3::cli {
namespace {

const CLI::App* Subcommand(const CLI::App& command, const std::string& name) {
  const auto found =
      command.get_subcommands([&](const CLI::App* each) { return each->get_name() == name; });
  return found.empty() ? nullptr : found.front();
}

// An option that goes on taking words takes one here: what follows may be an argument again.
void TakeOption(CTypedLine& line, const std::string& word) {
  const std::size_t equals = word.find('=');
  const CLI::Option* option = line.m_pCommand->get_option_no_throw(word.substr(0, equals));
  if (!option || option->get_items_expected_max() == 0) return;
  line.m_pOption = option;
}

void TakeValue(CTypedLine& line, const std::string& value) {
  if (line.m_pOption->check_lname("store")) line.m_store.store = value;
  if (line.m_pOption->check_lname("data")) line.m_store.data = value;
  line.m_pOption = nullptr;
}

void TakeWord(CTypedLine& line, const std::string& word) {
  if (line.m_pOption) return TakeValue(line, word);
  if (line.m_bOptions && word == "--") {
    line.m_bOptions = false;
  } else if (line.m_bOptions && word.starts_with("--")) {
    TakeOption(line, word);
    if (const std::size_t equals = word.find('='); line.m_pOption && equals != word.npos)
      TakeValue(line, word.substr(equals + 1));
  } else if (const CLI::App* command = Subcommand(*line.m_pCommand, word)) {
    line.m_pCommand = command;
  } else {
    line.m_arrArgument.push_back(word);
  }
}

void AddOptions(const CLI::App& command, std::vector<CCandidate>& candidates) {
  for (const CLI::Option* option : command.get_options()) {
    if (option->get_positional()) continue;
    for (const std::string& name : option->get_lnames())
      candidates.push_back({"--" + name, option->get_description()});
  }
}

// The argument at a place; the last one may be a list.
const CLI::Option* ArgumentAt(const CLI::App& command, std::size_t place) {
  const CLI::Option* last = nullptr;
  for (const CLI::Option* option : command.get_options()) {
    if (!option->get_positional()) continue;
    last = option;
    if (place-- == 0) return option;
  }
  return last && last->get_items_expected_max() > 1 ? last : nullptr;
}

}  // namespace

CTypedLine TypedLine(const CLI::App& program, const std::vector<std::string>& words) {
  CTypedLine line;
  line.m_pCommand = &program;
  for (const std::string& word : words) TakeWord(line, word);
  return line;
}

std::vector<CCandidate> Candidates(const CTypedLine& line, const std::string& begun) {
  if (line.m_pOption) return ValuesOf(line, *line.m_pOption, begun);
  const CLI::App& command = *line.m_pCommand;
  std::vector<CCandidate> candidates;
  if (line.m_bOptions && begun.starts_with("-")) {
    const std::size_t equals = begun.find('=');
    const CLI::Option* option = command.get_option_no_throw(begun.substr(0, equals));
    if (option && equals != begun.npos) {
      const std::string head = begun.substr(0, equals + 1);
      return Behind(head, ValuesOf(line, *option, begun.substr(head.size())));
    }
    AddOptions(command, candidates);
  }
  for (const CLI::App* each : command.get_subcommands({})) {
    if (!each->get_group().empty() && line.m_arrArgument.empty())
      candidates.push_back({each->get_name(), each->get_description()});
  }
  const CLI::Option* argument = ArgumentAt(command, line.m_arrArgument.size());
  if (!argument) return candidates;
  const auto values = ValuesOf(line, *argument, begun);
  candidates.insert(candidates.end(), values.begin(), values.end());
  return candidates;
}

namespace {

void PrintCandidates(const CLI::App& program, std::vector<std::string> words) {
  if (words.empty()) return;
  const std::string begun = std::move(words.back());
  words.pop_back();
  for (CCandidate& each : Candidates(TypedLine(program, words), begun)) {
    if (!each.m_strWord.empty() && !each.m_strWord.starts_with(begun)) continue;
    std::replace(each.m_strMeaning.begin(), each.m_strMeaning.end(), '\n', ' ');
    WriteOutput(each.m_strWord + '\t' + each.m_strMeaning + '\n');
  }
}

}  // namespace

void AddCompleteCommand(CLI::App& program) {
  auto words = std::make_shared<std::vector<std::string>>();
  CLI::App* command = program.add_subcommand("complete", "What the last word may become");
  command->group("");
  command->add_option("WORDS", *words, "The words behind orv3cal")->allow_extra_args();
  command->callback([&program, words] { PrintCandidates(program, *words); });
}

}  // namespace orv3::cli
