// The fuzzing engine's entry point.
#include "fuzz_one.h"

#include <QtGlobal>

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return fuzz_one({data, size});
}
