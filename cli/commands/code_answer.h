// A question to the design code: what it was asked, and the figure that answers it.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "codes/answer.h"
#include "codes/steel_grade.h"

namespace orv3::cli {

struct CCodeRequest {
  CCodeEdition m_nEdition = CCodeEdition::Gb2017;
  std::vector<std::string> m_arrArgument;
  bool m_bTube = false;

  std::size_t Count() const noexcept { return m_arrArgument.size(); }
  const std::string& operator[](std::size_t at) const { return m_arrArgument[at]; }
};

struct CCodeFigure {
  std::variant<double, std::string> m_value;  // an infinity where the code prints one
  const char* m_szUnit;
  std::string m_strSource;
  std::string m_strNote = {};                  // what to know before relying on it
  std::optional<CFigureStatus> m_status = {};  // of the figures of 2017
};

// The figure of an answer; its refusal names the argument as the command does.
CCodeFigure FigureOf(const CCodeAnswer<double>& answer, const char* unit);
CCodeFigure FigureOf(std::variant<double, std::string> value, const CCodeSource& source,
                     const char* unit);
[[noreturn]] void RefuseAs(const CCodeRefusal& refusal);

// What a look-up must answer to go on.
template <class VALUE>
const VALUE& Needed(const CCodeAnswer<VALUE>& answer) {
  if (!answer) RefuseAs(answer.Refusal());
  return *answer;
}

// --- Arguments, each refused by the name that the help gives it ----------------------------------

// "NAME: "TEXT" is not possible; give RIGHT"
[[noreturn]] void RefuseArgument(const char* name, const std::string& text, const CText& right);

// A number not below 0.
double Number(const CCodeRequest& request, std::size_t at, const char* name, const CText& right);

// The position of an argument among the words that it may be.
int WordOf(const CCodeRequest& request, std::size_t at, const char* name, const char* const* words,
           std::size_t count);
template <std::size_t COUNT>
int Choice(const CCodeRequest& request, std::size_t at, const char* name,
           const char* const (&words)[COUNT]) {
  return WordOf(request, at, name, words, COUNT);
}

// The position of a number among those that it may be.
int NumberAmong(const CCodeRequest& request, std::size_t at, const char* name,
                const std::vector<double>& numbers);

// `meanings` tells what the numbers stand for.
int Whole(const CCodeRequest& request, std::size_t at, const char* name, int first, int last,
          const CText& meanings = {});

// A steel that the edition has.
CSteelGrade Grade(const CCodeRequest& request, std::size_t at);

// --- Who answers --------------------------------------------------------------------------------

inline constexpr const char* kStressUnit = "N/mm²";
extern const char* const kAxisNames[2];

// code_strengths.cpp
CCodeFigure SteelFigure(const CCodeRequest& request);
CCodeFigure WeldFigure(const CCodeRequest& request);
CCodeFigure BoltFigure(const CCodeRequest& request);
CCodeFigure PreloadFigure(const CCodeRequest& request);
CCodeFigure SlipFigure(const CCodeRequest& request);
CCodeFigure HoleFigure(const CCodeRequest& request);
CCodeFigure SpacingFigure(const CCodeRequest& request);
CCodeFigure AreaFigure(const CCodeRequest& request);
CCodeFigure FatigueFigure(const CCodeRequest& request);

// code_members.cpp
CCodeFigure EpsFigure(const CCodeRequest& request);
CCodeFigure SectionClassFigure(const CCodeRequest& request);
CCodeFigure ClassFigure(const CCodeRequest& request);
CCodeFigure ThickClassFigure(const CCodeRequest& request);
CCodeFigure GammaFigure(const CCodeRequest& request);
CCodeFigure PhiFigure(const CCodeRequest& request);
CCodeFigure PhiBFigure(const CCodeRequest& request);
CCodeFigure WidthFigure(const CCodeRequest& request);
CCodeFigure WidthMomentsFigure(const CCodeRequest& request);
CCodeFigure WidthBeamFigure(const CCodeRequest& request);
CCodeFigure SlendernessFigure(const CCodeRequest& request);
CCodeFigure SlenderFigure(const CCodeRequest& request);
CCodeFigure MuFigure(const CCodeRequest& request);
CCodeFigure MuStepFigure(const CCodeRequest& request);
CCodeFigure MuStep2Figure(const CCodeRequest& request);
CCodeFigure MuTaperFigure(const CCodeRequest& request);

}  // namespace orv3::cli
