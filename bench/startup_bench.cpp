// How long the command takes from its start to its end, beside a program that does nothing, and how
// large the stripped command and library are.

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

namespace {

// The exit status of a program whose output nobody reads.
int Run(std::vector<std::string> words) {
  std::vector<char*> arguments;
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  posix_spawn_file_actions_t quiet;
  posix_spawn_file_actions_init(&quiet);
  posix_spawn_file_actions_addopen(&quiet, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  pid_t child = 0;
  int status = -1;
  if (posix_spawnp(&child, arguments[0], &quiet, nullptr, arguments.data(), environ) == 0)
    waitpid(child, &status, 0);
  posix_spawn_file_actions_destroy(&quiet);
  return status;
}

void Time(benchmark::State& state, const std::vector<std::string>& words) {
  for (auto _ : state) {
    if (Run(words) != 0) state.SkipWithError("the program failed");
  }
}

void Nothing(benchmark::State& state) { Time(state, {"true"}); }

void Section(benchmark::State& state) {
  Time(state, {ORV3CAL_PROGRAM, "section", "h", "300", "400", "20", "10"});
}

void Show(benchmark::State& state) {
  Time(state, {ORV3CAL_PROGRAM, "show", "热轧普通工字钢", "I20a"});
}

double StrippedMb(const std::string& file) {
  const auto copy = std::filesystem::temp_directory_path() / "orv3cal_stripped";
  if (Run({"strip", "-o", copy, file}) != 0) return 0;
  const auto size = static_cast<double>(std::filesystem::file_size(copy));
  std::filesystem::remove(copy);
  return size / 1e6;
}

void Size(benchmark::State& state) {
  for (auto _ : state) {
    state.counters["command_MB"] = StrippedMb(ORV3CAL_PROGRAM);
    state.counters["library_MB"] = StrippedMb(ORV3CAL_LIBRARY);
  }
}

BENCHMARK(Nothing)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(Section)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(Show)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(Size)->Iterations(1);

}  // namespace

BENCHMARK_MAIN();
