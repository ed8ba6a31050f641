// Runs a fuzz target once on every file of the folders (or on the files)
// given: the committed corpus, seeds and past crashes, as a regression test.
// Without the fuzzer's main this is the target's main.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

int main(int argc, char** argv)
{
    namespace fs = std::filesystem;
    std::vector<fs::path> inputs;
    for (int i = 1; i < argc; ++i) {
        if (fs::is_directory(argv[i])) {
            for (const auto& entry : fs::directory_iterator(argv[i]))
                if (entry.is_regular_file())
                    inputs.push_back(entry.path());
        } else {
            inputs.emplace_back(argv[i]);
        }
    }
    std::sort(inputs.begin(), inputs.end());
    if (inputs.empty()) {
        fprintf(stderr, "no inputs to replay\n");
        return 2;
    }
    for (const auto& path : inputs) {
        std::ifstream in(path, std::ios::binary);
        if (!in) {
            fprintf(stderr, "cannot read %s\n", path.c_str());
            return 2;
        }
        const std::vector<char> bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
        fprintf(stderr, "replaying %s\n", path.c_str());
        LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size());
    }
    fprintf(stderr, "%zu inputs replayed\n", inputs.size());
    return 0;
}
