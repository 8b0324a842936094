// The Python extension _orv3cal: runs the command within Python, with the interpreter lock
// released. The package orv3cal around it makes arguments of Python's values, and Python's values
// of answers.

#include <pybind11/numpy.h>
#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include <memory>

#include "answer_columns.h"
#include "frame_columns.h"
#include "framework/utf8.h"
#include "options/asked_language.h"
#include "program.h"
#include "store/store_place.h"

namespace orv3::python {
namespace {

namespace py = pybind11;

int RunUnlocked(const cli::CArguments& arguments, cli::CMemoryStreams& streams) {
  const py::gil_scoped_release unlocked;
  return cli::RunProgram(arguments, streams);
}

py::tuple Run(const cli::CArguments& arguments, const std::string& input) {
  cli::CMemoryStreams streams;
  streams.m_in.str(input);
  const int status = RunUnlocked(arguments, streams);
  return py::make_tuple(status, streams.m_strOut, streams.m_strError);
}

// An array that owns its values.
template <class VALUE>
py::array Array(std::vector<VALUE>&& values) {
  auto kept = std::make_unique<std::vector<VALUE>>(std::move(values));
  auto* data = kept->data();
  const std::size_t count = kept->size();
  const py::capsule owner(kept.release(),
                          [](void* each) { delete static_cast<std::vector<VALUE>*>(each); });
  return py::array_t<VALUE>(count, data, owner);
}

// Equal texts of neighbouring rows, as most are, are one object.
py::object Texts(const std::vector<std::string>& texts) {
  py::list list(texts.size());
  py::str last;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    if (i == 0 || texts[i] != texts[i - 1]) last = py::str(texts[i]);
    list[i] = last;
  }
  return list;
}

py::object Values(CAnswerValues&& values) {
  if (auto* numbers = std::get_if<std::vector<double>>(&values)) return Array(std::move(*numbers));
  if (auto* verdicts = std::get_if<CVerdicts>(&values))
    return Array(std::move(verdicts->m_arrValue));
  return Texts(std::get<std::vector<std::string>>(values));
}

void SpeakFor(const cli::CArguments& arguments) { SetMessageLanguage(cli::LanguageFor(arguments)); }

std::string SayFor(const cli::CArguments& arguments, const char* chinese, const char* english) {
  SpeakFor(arguments);
  return Say(chinese, english);
}

py::tuple RunCases(const cli::CArguments& arguments, const py::dict& frame,
                   const py::function& plain) {
  SpeakFor(arguments);
  const cli::CCaseColumns cases = FrameColumns(frame, plain);
  cli::CMemoryStreams streams;
  streams.m_pCases = &cases;
  int status = 0;
  std::vector<CAnswerColumn> columns;
  {
    const py::gil_scoped_release unlocked;
    status = cli::RunProgram(arguments, streams);
    columns = AnswerColumns(std::move(streams.m_strOut));
  }
  py::dict answer;
  for (CAnswerColumn& column : columns)
    answer[py::str(column.m_strKey)] = Values(std::move(column.m_values));
  return py::make_tuple(status, answer, streams.m_strError);
}

}  // namespace
}  // namespace orv3::python

PYBIND11_MODULE(_orv3cal, module) {
  namespace py = pybind11;
  module.doc() = "Runs the command orv3cal within Python.";
  module.attr("__version__") = ORV3CAL_VERSION;
  module.def("run", &orv3::python::Run, py::arg("arguments"), py::arg("input") = "",
             "Runs a command line; answers (exit status, standard output, standard error).");
  module.def("run_cases", &orv3::python::RunCases, py::arg("arguments"), py::arg("columns"),
             py::arg("plain"),
             "Runs a check whose file of cases is '-'; answers (exit status, columns, standard "
             "error). `plain` makes a cell of another kind one of Python's own.");
  module.def("say", &orv3::python::SayFor, py::arg("arguments"), py::arg("chinese"),
             py::arg("english"),
             "The half of a text that a command with these arguments would answer with.");
  module.def(
      "hold", [] { orv3::cli::ProgramTurn().lock(); }, py::call_guard<py::gil_scoped_release>(),
      "Waits until no command runs and lets none begin, for a fork of the process.");
  module.def(
      "release", [] { orv3::cli::ProgramTurn().unlock(); }, "Lets commands run again.");
  module.def(
      "set_catalogue",
      [](const std::string& folder) { orv3::cli::SetShippedFolder(orv3::FromUtf8(folder)); },
      py::arg("folder"), "Names the folder of the catalogue that comes with the installation.");
}
