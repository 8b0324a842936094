#include "frame_columns.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "framework/excerpt.h"
#include "framework/language.h"

namespace orv3::python {
namespace {

namespace py = pybind11;
using cli::CCaseCell;
using cli::CCaseColumn;

// The UTF-8 of a str; one with half a surrogate pair has none.
std::optional<std::string> Utf8(const py::handle& text) {
  Py_ssize_t size = 0;
  if (const char* bytes = PyUnicode_AsUTF8AndSize(text.ptr(), &size))
    return std::string(bytes, static_cast<std::size_t>(size));
  PyErr_Clear();
  return std::nullopt;
}

// Python's own kinds of cells.
bool IsText(const py::handle& cell) { return PyUnicode_Check(cell.ptr()) != 0; }
bool IsNumber(const py::handle& cell) {
  return PyFloat_Check(cell.ptr()) != 0 || PyLong_Check(cell.ptr()) != 0;
}
bool IsList(const py::handle& cell) {
  return PyList_Check(cell.ptr()) != 0 || PyTuple_Check(cell.ptr()) != 0;
}

// A cell as one of these, by the package's own function, if it can be one.
py::object Plain(const py::handle& cell, const py::function& plain) {
  auto own = py::reinterpret_borrow<py::object>(cell);
  if (cell.is_none() || IsText(cell) || IsNumber(cell) || IsList(cell)) return own;
  try {
    return plain(cell);
  } catch (const py::error_already_set& fault) {
    if (!fault.matches(PyExc_Exception)) throw;
    return own;
  }
}

// None, NaN and the other marks of a value that is missing: those are not equal to themselves.
// pandas.NA alone does not tell whether it is; a frame in a cell does not either, and is no mark.
bool IsMissing(const py::handle& cell) {
  if (cell.is_none()) return true;
  if (IsText(cell) || IsList(cell)) return false;
  if (std::string_view(Py_TYPE(cell.ptr())->tp_name) == "NAType") return true;
  const auto same =
      py::reinterpret_steal<py::object>(PyObject_RichCompare(cell.ptr(), cell.ptr(), Py_EQ));
  const int truth = same ? PyObject_IsTrue(same.ptr()) : -1;
  if (truth < 0) PyErr_Clear();
  return truth == 0;
}

// As an error quotes a value: as Python writes it, else the name of its type.
std::string Quoted(const py::handle& value) {
  const auto written = py::reinterpret_steal<py::object>(PyObject_Repr(value.ptr()));
  PyErr_Clear();
  std::optional<std::string> text = written ? Utf8(written) : std::nullopt;
  return Excerpt(text ? *text : Py_TYPE(value.ptr())->tp_name);
}

cli::CCellFault NotPossible(const py::handle& value) {
  const std::string is = Quoted(value);
  return {{is + " 不可用", is + " is not possible"}};
}

cli::CCellFault NotInList(const py::handle& value) {
  const std::string is = Quoted(value);
  return {{"数列中不能有 " + is, is + " is not possible in a list"}};
}

// None of a whole number beyond all doubles, and of what is no number: True and False are none.
std::optional<double> Number(const py::handle& value) {
  if (PyBool_Check(value.ptr()) != 0 || !IsNumber(value)) return std::nullopt;
  const double number = PyFloat_AsDouble(value.ptr());
  if (PyErr_Occurred() == nullptr) return number;
  PyErr_Clear();
  return std::nullopt;
}

CCaseCell List(const py::handle& values, const py::function& plain) {
  std::vector<double> list;
  for (const py::handle each : py::reinterpret_borrow<py::iterable>(values)) {
    const py::object value = Plain(each, plain);
    const std::optional<double> number = Number(value);
    if (!number) return NotInList(value);
    list.push_back(*number);
  }
  return list;
}

// All digits of a whole number: a double does not hold a long one.
CCaseCell Digits(const py::handle& number) {
  const auto digits = py::reinterpret_steal<py::object>(PyNumber_ToBase(number.ptr(), 10));
  PyErr_Clear();
  if (!digits) return NotPossible(number);
  return *Utf8(digits);
}

CCaseCell Cell(const py::handle& given, bool name, const py::function& plain) {
  const py::object value = Plain(given, plain);
  if (IsMissing(value)) return {};
  if (PyBool_Check(value.ptr()) != 0) return value.ptr() == Py_True;
  if (IsList(value)) return List(value, plain);
  if (IsText(value)) {
    if (std::optional<std::string> text = Utf8(value)) return *std::move(text);
    return cli::CCellFault{{"不是 UTF-8 文字", "is not UTF-8 text"}};
  }
  if (name && PyLong_Check(value.ptr()) != 0) return Digits(value);
  if (const std::optional<double> number = Number(value)) return *number;
  return NotPossible(value);
}

CCaseColumn Column(const std::string& key, const py::array& values, const py::function& plain) {
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
    column.m_arrCell.push_back(Cell(cells[row], key == "id", plain));
  return column;
}

}  // namespace

cli::CCaseColumns FrameColumns(const py::dict& columns, const py::function& plain) {
  cli::CCaseColumns cases;
  for (const auto& [name, values] : columns) {
    const std::optional<std::string> text = Utf8(name);
    if (!text)
      throw py::value_error(
          Say("有一个列名不是 UTF-8 文字", "the name of a column is not UTF-8 text"));
    const std::string& key = *text;
    const auto array = values.cast<py::array>();
    const auto count = static_cast<std::size_t>(array.size());
    if (!cases.m_arrColumn.empty() && count != cases.m_nCases)
      throw py::value_error(Say("{1}：{2} 个值；前面各列为 {3} 个",
                                "{1}: {2} values; the columns before it have {3}",
                                {key, std::to_string(count), std::to_string(cases.m_nCases)}));
    cases.m_nCases = count;
    cases.m_arrColumn.push_back(Column(key, array, plain));
  }
  return cases;
}

}  // namespace orv3::python
