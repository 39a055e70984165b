// Runs a target on its corpus, without the fuzzing engine. Usage: TARGET CORPUS...
#include "corpus_lines.h"
#include "fuzz_one.h"

#include <QtGlobal>

#include <exception>

namespace {

void replay(const std::string& corpus) {
    int line = 0;
    for (const std::string& input : inputs_of(corpus)) {
        std::printf("%s:%d\n", corpus.c_str(),
                    ++line); // the last one printed is the one that failed
        std::fflush(stdout);
        const std::vector<std::uint8_t> bytes(input.begin(),
                                              input.end()); // ends where the input does
        fuzz_one(bytes);
    }
}

} // namespace

int main(int argc, char** argv) {
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    fuzz_one({});
    try {
        for (int i = 1; i < argc; ++i)
            replay(argv[i]);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
    return argc > 1 ? 0 : 1;
}
