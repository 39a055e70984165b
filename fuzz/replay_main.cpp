// Runs a target on files, without the fuzzing engine. Usage: TARGET FILE-OR-FOLDER...
#include "fuzz_one.h"

#include <QtGlobal>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

namespace {

namespace fs = std::filesystem;

int replayed = 0;

void replay(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
    std::printf("%s\n", path.c_str()); // the last one printed is the one that failed
    std::fflush(stdout);
    fuzz_one({reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()});
    ++replayed;
}

} // namespace

int main(int argc, char** argv) {
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    fuzz_one({});
    for (int i = 1; i < argc; ++i) {
        if (!fs::is_directory(argv[i]))
            replay(argv[i]);
        else
            for (const fs::directory_entry& entry : fs::directory_iterator(argv[i]))
                replay(entry.path());
    }
    std::printf("%d inputs\n", replayed);
    return replayed > 0 ? 0 : 1;
}
