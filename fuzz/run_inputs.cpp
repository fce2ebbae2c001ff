// run_inputs FOLDER: gives each kept input to the fuzzer that this is linked with, once.
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int count, char** words)
{
    if (count != 2) {
        std::cerr << "usage: " << words[0] << " FOLDER\n";
        return 2;
    }
    int inputs = 0;
    for (const auto& entry : std::filesystem::directory_iterator(words[1])) {
        std::ifstream file(entry.path(), std::ios::binary);
        const std::string bytes{std::istreambuf_iterator<char>{file}, {}};
        std::cout << entry.path().filename() << '\n'
                  << std::flush; // the last one named is to blame
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
        ++inputs;
    }
    return inputs > 0 ? 0 : 1;
}
