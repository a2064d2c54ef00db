// Feeds every file of the folders on the command line to a fuzz target.
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

int main(int argc, char **argv)
{
    size_t replayed = 0;
    for (int i = 1; i < argc; ++i) {
        for (const auto &entry : std::filesystem::directory_iterator(argv[i])) {
            std::ifstream stream(entry.path(), std::ios::binary);
            std::string text{std::istreambuf_iterator<char>(stream), {}};
            LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t *>(text.data()), text.size());
            ++replayed;
        }
    }
    printf("%zu inputs replayed\n", replayed);
    return replayed > 0 ? 0 : 1;
}
