// The forms of case files.
#pragma once

#include "cases/case_bytes.h"
#include "cases/case_columns.h"
#include "cases/case_source.h"

namespace orv3::cli {

void ReadJsonCases(CCaseBytes& bytes, const CCaseSchema& schema, const CTakeCase& take);
void ReadCsvCases(CCaseBytes& bytes, const CCaseSchema& schema, const CTakeCase& take);
void ReadColumnCases(const CCaseColumns& cases, const CCaseSchema& schema, const CTakeCase& take);

}  // namespace orv3::cli
