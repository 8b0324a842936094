// The exact properties of a section as JSON and as a block of a table.
#pragma once

#include <string>
#include <vector>

#include "outlines/exact_properties.h"
#include "output/output.h"

namespace orv3::cli {

// "exact": all keys in their order, null where there is no answer; "accurate"; "missing": why
// the solver has no figures, where it has none; "errors": the solver's estimates, of "It", "Iw" and
// "As" relative, of "center" and "betas" in mm.
void AddExactJson(CJson& json, const CExactProperties& exact);

// "accurate" and "errors" alone.
void AddAccuracyJson(CJson& json, const CExactProperties& exact);

// Tells on standard error that the figures of `what` are not within their limits of error.
void WarnInaccurate(const std::string& what, const CExactProperties& exact);

// The block with its heading, and below it what a reader should know of the figures.
void PrintExact(const CExactProperties& exact);

}  // namespace orv3::cli
