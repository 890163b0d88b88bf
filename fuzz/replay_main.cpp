// Replays inputs through a fuzz target without libFuzzer, so that every build's compiler and
// sanitizers see the seeds. Each argument is a file, or a folder whose files are replayed.
// Nothing to replay is a failure: a moved or emptied corpus must not pass unnoticed.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv) {
  namespace fs = std::filesystem;
  std::vector<fs::path> inputs;
  for (int i = 1; i < argc; ++i) {
    const fs::path path(argv[i]);
    if (!fs::is_directory(path)) {
      inputs.push_back(path);
      continue;
    }
    for (const auto& entry : fs::directory_iterator(path)) {
      if (entry.is_regular_file()) inputs.push_back(entry.path());
    }
  }
  if (inputs.empty()) {
    std::cerr << "no inputs to replay\n";
    return 1;
  }
  std::sort(inputs.begin(), inputs.end());
  for (const auto& path : inputs) {
    std::ifstream in(path, std::ios::binary);
    std::error_code error;
    const auto size = fs::file_size(path, error);
    if (!in || error) {
      std::cerr << path.string() << ": cannot read\n";
      return 1;
    }
    // A buffer of exactly the input's size, as libFuzzer passes, so that a read past the end
    // is caught by AddressSanitizer.
    const auto data = std::make_unique<std::uint8_t[]>(size);
    in.read(reinterpret_cast<char*>(data.get()), static_cast<std::streamsize>(size));
    // A crash report follows the name of the input that caused it.
    std::cerr << path.string() << '\n';
    LLVMFuzzerTestOneInput(data.get(), size);
  }
  std::cout << "replayed " << inputs.size() << " inputs\n";
  return 0;
}
