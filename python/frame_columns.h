// The columns of a frame or of numpy arrays as the cases of a check.
#pragma once

#include <pybind11/numpy.h>
#include <pybind11/pybind11.h>

#include "cases/case_columns.h"

namespace orv3::python {

// `columns` maps each key to an array: float64, whose numbers are used where they are, or of
// objects (None, NaN and other missing values, numbers, texts, lists of numbers), which are copied.
// All are of one length, and live longer than the answer. TypeError and ValueError name the key.
cli::CCaseColumns FrameColumns(const pybind11::dict& columns);

}  // namespace orv3::python
