// How the look-ups of the code refuse an argument: one sentence that names it.
#pragma once

#include <span>
#include <string>

#include "codes/edition.h"
#include "codes/steel_grade.h"

namespace orv3 {

// "NUMBER is not possible"
CCodeRefusal NotPossible(const char* argument, double number, CText right);
// "NAME is not possible; give one of ..."
CCodeRefusal NoneOf(const char* argument, std::string_view name,
                    std::span<const char* const> names);
// "GB 50017-2003 has no NAME"
CCodeRefusal NotInEdition(const char* argument, CCodeEdition edition, const CText& name,
                          CText right);
// The same for a grade; `grades` are what would be right.
CCodeRefusal NotInEdition(CCodeEdition edition, CSteelGrade grade,
                          std::span<const CSteelGrade> grades);

// "give one of A, B"
CText OneOf(std::span<const char* const> names);
CText OneOf(std::span<const CSteelGrade> grades);
// "give FIRST to LAST UNIT"
CText FromTo(double first, double last, const char* unit = "");
// "give a number above 0 and up to LAST UNIT"
CText AboveZero(double last, const char* unit = "");
// "give a thickness above OVER and up to UP TO mm"
CText ThicknessAbove(double over, double to);

std::string CodeNumber(double number);

}  // namespace orv3
