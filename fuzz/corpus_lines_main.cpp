// Converts between a corpus and the fuzzing engine's files:
//   corpus_lines unpack CORPUS FOLDER    each line as a file, named by its number
//   corpus_lines line FILE...            each file as a line, to be added to a corpus
#include "corpus_lines.h"

#include <cstdio>
#include <exception>
#include <fstream>
#include <iostream>
#include <iterator>
#include <stdexcept>

namespace {

void unpack(const std::string& corpus, const std::string& folder) {
    int number = 0;
    for (const std::string& input : inputs_of(corpus))
        if (!(std::ofstream(folder + "/" + std::to_string(++number), std::ios::binary) << input)
                 .flush())
            throw std::runtime_error("cannot write into " + folder);
}

void print_line(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file)
        throw std::runtime_error("cannot read " + path);
    std::cout << escaped(std::string{std::istreambuf_iterator<char>(file), {}}) << '\n';
}

} // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    try {
        if (argc == 4 && arguments[0] == "unpack")
            unpack(arguments[1], arguments[2]);
        else if (argc > 2 && arguments[0] == "line")
            for (int i = 1; i < argc - 1; ++i)
                print_line(arguments[static_cast<std::size_t>(i)]);
        else
            throw std::runtime_error("Usage: corpus_lines unpack CORPUS FOLDER | line FILE...");
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
    return 0;
}
