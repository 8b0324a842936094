// The columns of a frame or of numpy arrays as the cases of a check.
#pragma once

#include <pybind11/numpy.h>
#include <pybind11/pybind11.h>

#include "cases/case_columns.h"

namespace orv3::python {

// `columns` maps each key to an array: float64, whose numbers are used where they are, or of
// objects, which are copied: missing values, numbers, texts, lists of numbers, and what `plain`
// makes one of these; any other is a fault of its row. All are of one length, and live longer than
// the answer. ValueError names the key of one that is not.
cli::CCaseColumns FrameColumns(const pybind11::dict& columns, const pybind11::function& plain);

}  // namespace orv3::python
