// A fuzz target as a test: the kept inputs, then others made of them with a fixed seed, so that
// every run on every machine sees the same bytes. (The search that follows the coverage depends on
// where the system puts the program in memory, and finds one thing today and another tomorrow.)
//
//   TARGET RUNS CORPUS FINDING     RUNS inputs besides those in the folder CORPUS; one that fails
//                                  is written to the file FINDING
#include <sanitizer/common_interface_defs.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size);

// A trap and an abort are findings like any other.
extern "C" const char* __asan_default_options() { return "handle_sigill=1:handle_abort=1"; }

namespace {

constexpr std::size_t kLongest = 8192;
constexpr std::size_t kPool = 256;

std::string g_strInput;
std::string g_strFinding;

void KeepFinding() {
  std::ofstream(g_strFinding, std::ios::binary) << g_strInput;
  std::cerr << "the input is kept as " << g_strFinding << std::endl;
}

void Try(const std::string& input) {
  g_strInput = input;
  LLVMFuzzerTestOneInput(reinterpret_cast<const unsigned char*>(input.data()), input.size());
}

std::vector<std::string> Corpus(const std::string& folder) {
  std::vector<std::filesystem::path> paths;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) paths.push_back(entry);
  std::sort(paths.begin(), paths.end());
  std::vector<std::string> inputs;
  for (const auto& path : paths) {
    std::ifstream file(path, std::ios::binary);
    inputs.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
  }
  return inputs;
}

// Changes texts a little: bytes, runs of them, numbers, and parts of other inputs.
class CMutator {
 public:
  std::string Changed(std::string text, const std::vector<std::string>& pool) {
    for (std::size_t changes = 1 + Below(5); changes > 0; --changes) Change(text, pool);
    if (text.size() > kLongest) text.resize(kLongest);
    return text;
  }

  std::size_t Below(std::size_t limit) { return static_cast<std::size_t>(m_random() % limit); }

 private:
  void Change(std::string& text, const std::vector<std::string>& pool) {
    constexpr std::string_view kTelling("\0\1\x7f\x80\xff\n\r\t ,;\"'#(-+.019eE{}[]", 28);
    const std::size_t at = Below(text.size() + 1);
    const std::size_t length = std::min(Below(std::size_t{1} << Below(8)) + 1, text.size() - at);
    switch (Below(7)) {
      case 0:
        return Put(text, at, static_cast<char>(m_random()));
      case 1:
        return Put(text, at, kTelling[Below(kTelling.size())]);
      case 2:
        text.erase(at, length);
        return;
      case 3:
        text.insert(at, text.substr(at, length));
        return;
      case 4:
        text.insert(at, 1 + Below(40), kTelling[Below(kTelling.size())]);
        return;
      case 5:
        return PutNumber(text, at);
      default:
        return PutPart(text, at, pool[Below(pool.size())]);
    }
  }

  static void Put(std::string& text, std::size_t at, char byte) {
    if (at < text.size()) text[at] = byte;
  }

  // A number of the file's own, little-endian or in digits, by one of the edges of its range.
  void PutNumber(std::string& text, std::size_t at) {
    constexpr std::int64_t kEdges[] = {0,     1,          -1,          99,       32767,
                                       65536, 2147483647, -2147483648, INT64_MAX};
    const std::int64_t number = kEdges[Below(std::size(kEdges))];
    std::string bytes = std::to_string(number);
    if (Below(2) == 0) {
      bytes.clear();
      for (int i = 0; i < (Below(2) ? 4 : 2); ++i) bytes += static_cast<char>(number >> 8 * i);
    }
    text.replace(at, std::min(bytes.size(), text.size() - at), bytes);
  }

  void PutPart(std::string& text, std::size_t at, const std::string& other) {
    const std::string part = other.substr(Below(other.size() + 1), 1 + Below(200));
    text.replace(at, Below(2) ? std::min(part.size(), text.size() - at) : 0, part);
  }

  std::mt19937_64 m_random;  // its standard seed
};

}  // namespace

int main(int count, char** arguments) {
  if (count != 4) {
    std::cerr << "usage: " << arguments[0] << " RUNS CORPUS FINDING\n";
    return 2;
  }
  g_strFinding = arguments[3];
  __sanitizer_set_death_callback(KeepFinding);
  std::vector<std::string> pool = Corpus(arguments[2]);
  for (const std::string& input : pool) Try(input);
  const std::size_t kept = pool.size();
  pool.emplace_back();

  // Every second input starts from a kept one, the others from what was made before.
  CMutator mutator;
  for (long runs = std::strtol(arguments[1], nullptr, 10); runs > 0; --runs) {
    const std::size_t from = mutator.Below(runs % 2 && kept > 0 ? kept : pool.size());
    std::string input = mutator.Changed(pool[from], pool);
    Try(input);
    if (pool.size() < kept + kPool)
      pool.push_back(std::move(input));
    else
      pool[kept + mutator.Below(kPool)] = std::move(input);
  }
  std::cout << kept << " kept inputs and " << arguments[1] << " others\n";
}
