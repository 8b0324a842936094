// What may stand in a place of a command line: the values of an argument or an option.
#pragma once

#include <CLI/App.hpp>
#include <string>
#include <vector>

#include "store/store_place.h"

namespace orv3::cli {

struct CCandidate {
  std::string m_strWord;
  std::string m_strMeaning;
};

// A command line as far as it is typed, without its last word.
struct CTypedLine {
  const CLI::App* m_pCommand = nullptr;
  std::vector<std::string> m_arrArgument;
  CStoreOptions m_store;
  const CLI::Option* m_pOption = nullptr;  // whose value comes next, if it is one's
  bool m_bOptions = true;                  // no "--" so far
};

CTypedLine TypedLine(const CLI::App& program, const std::vector<std::string>& words);

// What the last word, of which `begun` is there, may become. The word of a place of files is empty,
// with "files" or "folders" for its meaning.
std::vector<CCandidate> Candidates(const CTypedLine& line, const std::string& begun);

// The values of an argument or an option: tables, numbers, signs, styles, grades, choices.
std::vector<CCandidate> ValuesOf(const CTypedLine& line, const CLI::Option& option,
                                 const std::string& begun);

// The values, each behind `head`: the option, or the part of a list that is whole.
std::vector<CCandidate> Behind(const std::string& head, std::vector<CCandidate> values);

}  // namespace orv3::cli
