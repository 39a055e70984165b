// Runs the tests inside a Qt application; an unexpected Qt warning fails the test that raised it. A
// test that expects one names it with expect_warning().
#include "qt_warnings.h"

#include <gtest/gtest.h>

#ifdef KESTROM_TEST_GUI
#include <QApplication>
using application = QApplication;
#else
#include <QCoreApplication>
using application = QCoreApplication;
#endif

#include <cstdio>

namespace {

std::vector<std::string> expected_warnings;

void judge_message(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    const std::string text = message.toStdString();
    if (type == QtDebugMsg || type == QtInfoMsg)
        return;
    for (const std::string& expected : expected_warnings)
        if (text.find(expected) != std::string::npos)
            return;
    std::fprintf(stderr, "%s: %s\n", context.category ? context.category : "", text.c_str());
    ADD_FAILURE() << "unexpected warning: " << text;
}

class warning_reset : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo&) override { expected_warnings.clear(); }
};

} // namespace

void expect_warning(const std::string& part) {
    expected_warnings.push_back(part);
}

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen"); // also when CTest only asks for the names
    const application app(argc, argv);
    qInstallMessageHandler(judge_message);
    testing::UnitTest::GetInstance()->listeners().Append(new warning_reset);
    return RUN_ALL_TESTS();
}
