// Feeds the files of a folder to a fuzzer's entry function: whole, cut off at every place, and with single bytes
// changed.

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

namespace {

using Bytes = std::vector<uint8_t>;

constexpr int ChangesPerFile = 300;

Bytes contentOf(const std::filesystem::path &path)
{
    std::ifstream file(path, std::ios::binary);
    return Bytes{std::istreambuf_iterator<char>(file), {}};
}

void feed(const Bytes &bytes)
{
    // Without spare room behind the bytes, so that a sanitizer sees a read beyond them.
    const Bytes exact(bytes);
    LLVMFuzzerTestOneInput(exact.data(), exact.size());
}

void feedChanged(Bytes bytes, std::minstd_rand &random)
{
    for (int i = 0; i < ChangesPerFile && !bytes.empty(); ++i) {
        uint8_t &changed = bytes[random() % bytes.size()];
        const uint8_t before = changed;
        changed = uint8_t(random() >> 8);
        feed(bytes);
        changed = before;
    }
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2)
        return 2;
    std::minstd_rand random;
    int files = 0;
    for (const auto &entry : std::filesystem::directory_iterator(argv[1])) {
        std::printf("%s\n", entry.path().c_str());
        std::fflush(stdout);
        const Bytes bytes = contentOf(entry.path());
        for (size_t size = 0; size <= bytes.size(); ++size)
            feed(Bytes(bytes.begin(), bytes.begin() + ptrdiff_t(size)));
        feedChanged(bytes, random);
        ++files;
    }
    return files > 0 ? 0 : 1;
}
