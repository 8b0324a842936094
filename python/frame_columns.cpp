#include "frame_columns.h"

#include <string>
#include <string_view>

#include "framework/excerpt.h"
#include "framework/language.h"

namespace orv3::python {
namespace {

namespace py = pybind11;
using cli::CCaseCell;
using cli::CCaseColumn;

// Rows count from 1, as the answer's column "case" does.
std::string Place(const std::string& key, std::size_t row) {
  return Say("{1}：第 {2} 行", "{1}: row {2}", {key, std::to_string(row + 1)});
}

bool IsText(const py::handle& cell) { return PyUnicode_Check(cell.ptr()) != 0; }

// The UTF-8 of a str; one with half a surrogate pair has none.
std::string Utf8(const py::handle& text, const std::string& place) {
  Py_ssize_t size = 0;
  if (const char* bytes = PyUnicode_AsUTF8AndSize(text.ptr(), &size))
    return {bytes, static_cast<std::size_t>(size)};
  PyErr_Clear();
  throw py::value_error(Say("{1}：不是 UTF-8 文字", "{1}: is not UTF-8 text", {place}));
}

bool IsList(const py::handle& cell) {
  return py::isinstance<py::list>(cell) || py::isinstance<py::tuple>(cell) ||
         py::isinstance<py::array>(cell);
}

// None, NaN and the other marks of a value that is missing: those are not equal to themselves.
// pandas.NA alone does not tell whether it is; a frame in a cell does not either, and is no mark.
// What is masked in an array of numpy is an array itself.
bool IsMissing(const py::handle& cell) {
  if (cell.is_none()) return true;
  const std::string_view type = Py_TYPE(cell.ptr())->tp_name;
  if (type == "NAType" || type == "MaskedConstant") return true;
  if (IsText(cell) || IsList(cell)) return false;
  const auto same =
      py::reinterpret_steal<py::object>(PyObject_RichCompare(cell.ptr(), cell.ptr(), Py_EQ));
  const int truth = same ? PyObject_IsTrue(same.ptr()) : -1;
  if (truth < 0) PyErr_Clear();
  return truth == 0;
}

// The digits of a whole number; empty for others.
std::string Digits(const py::handle& cell) {
  if (PyIndex_Check(cell.ptr()) == 0) return {};
  const auto whole = py::reinterpret_steal<py::object>(PyNumber_Index(cell.ptr()));
  PyErr_Clear();
  return whole ? py::str(whole).cast<std::string>() : std::string();
}

double Number(const py::handle& value, const std::string& place) {
  const double number = PyFloat_AsDouble(value.ptr());
  if (number == -1 && PyErr_Occurred() != nullptr) {
    PyErr_Clear();
    throw py::type_error(Say("{1}：{2} 不是数、文字或数的列表",
                             "{1}: {2} is no number, text or list of numbers",
                             {place, Excerpt(py::repr(value).cast<std::string>())}));
  }
  return number;
}

// True and False of Python and of numpy: no numbers, though both convert to 1 and 0.
bool IsTruth(const py::handle& cell) {
  const std::string_view type = Py_TYPE(cell.ptr())->tp_name;
  return PyBool_Check(cell.ptr()) != 0 || type == "numpy.bool_" || type == "numpy.bool";
}

CCaseCell Cell(const py::handle& value, const std::string& key, std::size_t row) {
  if (IsMissing(value)) return {};
  if (IsTruth(value)) return std::string(PyObject_IsTrue(value.ptr()) == 1 ? "true" : "false");
  if (IsText(value)) return Utf8(value, Place(key, row));
  if (key == "id") {  // a name: a double does not hold a long one
    if (std::string digits = Digits(value); !digits.empty()) return digits;
  }
  if (!IsList(value)) return Number(value, Place(key, row));
  std::vector<double> list;
  for (const py::handle each : py::reinterpret_borrow<py::iterable>(value)) {
    if (IsTruth(each))
      throw py::type_error(Say("{1}：true 和 false 不是数", "{1}: true and false are no numbers",
                               {Place(key, row)}));
    list.push_back(Number(each, Place(key, row)));
  }
  return list;
}

CCaseColumn Column(const std::string& key, const py::array& values) {
  CCaseColumn column;
  column.m_strKey = key;
  const auto count = static_cast<std::size_t>(values.size());
  if (py::isinstance<py::array_t<double>>(values)) {
    column.m_arrNumber = {static_cast<const double*>(values.data()), count};
    return column;
  }
  const auto* cells = static_cast<PyObject* const*>(values.data());
  column.m_arrCell.reserve(count);
  for (std::size_t row = 0; row < count; ++row)
    column.m_arrCell.push_back(Cell(cells[row], key, row));
  return column;
}

}  // namespace

cli::CCaseColumns FrameColumns(const py::dict& columns) {
  cli::CCaseColumns cases;
  for (const auto& [name, values] : columns) {
    const std::string key = Utf8(name, Say("列名", "name of a column"));
    const auto array = values.cast<py::array>();
    const auto count = static_cast<std::size_t>(array.size());
    if (!cases.m_arrColumn.empty() && count != cases.m_nCases)
      throw py::value_error(Say("{1}：{2} 个值；前面各列为 {3} 个",
                                "{1}: {2} values; the columns before it have {3}",
                                {key, std::to_string(count), std::to_string(cases.m_nCases)}));
    cases.m_nCases = count;
    cases.m_arrColumn.push_back(Column(key, array));
  }
  return cases;
}

}  // namespace orv3::python
