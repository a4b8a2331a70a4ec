/// Stands in for libFuzzer: runs the inputs of a folder, then a number of random ones that are the same everywhere.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

using Input = std::vector<std::uint8_t>;

constexpr std::size_t longest_input = 400;

void run(const Input& input)
{
    LLVMFuzzerTestOneInput(input.data(), input.size());
}

int run_kept_inputs(const char* folder)
{
    int count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        std::printf("%s\n", entry.path().filename().c_str());
        std::fflush(stdout);
        std::ifstream file(entry.path(), std::ios::binary);
        run(Input(std::istreambuf_iterator<char>(file), {}));
        ++count;
    }
    return count;
}

Input random_input(unsigned seed)
{
    std::mt19937 random(seed);
    Input input(random() % longest_input);
    for (std::uint8_t& byte : input)
        byte = static_cast<std::uint8_t>(random());
    return input;
}

void run_random_inputs(unsigned count)
{
    for (unsigned seed = 0; seed < count; ++seed) {
        std::printf("random input %u\n", seed);
        std::fflush(stdout);
        run(random_input(seed));
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: %s FOLDER RANDOM-COUNT\n", argv[0]);
        return 2;
    }
    const int kept = run_kept_inputs(argv[1]);
    run_random_inputs(static_cast<unsigned>(std::atoi(argv[2])));
    return kept > 0 ? 0 : 1;
}
