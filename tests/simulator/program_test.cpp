// The program itself: what it prints and how it ends.
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <gtest/gtest.h>

namespace {

struct outcome {
    int code = -1;
    std::string out, err;
};

outcome run(const QStringList& arguments, const QByteArray& input = {}) {
    QProcess program;
    program.start(QStringLiteral(VIRTUAL_CAR_PROGRAM), arguments);
    program.write(input);
    program.closeWriteChannel();
    if (!program.waitForFinished(20000))
        return {};
    return {program.exitCode(), program.readAllStandardOutput().toStdString(),
            program.readAllStandardError().toStdString()};
}

TEST(program_test, speaks_on_standard_input_and_output) {
    const outcome spoken =
        run({QStringLiteral("--stdio"), QStringLiteral("--car"), QStringLiteral("clean"),
             QStringLiteral("--latency"), QStringLiteral("5")},
            "ATE0\r03\r");
    EXPECT_EQ(spoken.code, 0);
    EXPECT_EQ(spoken.out, "ATE0\rOK\r\r>SEARCHING...\r43 00\r\r>");
}

TEST(program_test, a_broken_car_file_ends_it_with_two_and_names_file_line_and_reason) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("broken.json"));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("{\n  \"title\": 5\n}\n");
    file.close();
    const outcome broken = run({QStringLiteral("--car"), path});
    EXPECT_EQ(broken.code, 2);
    EXPECT_EQ(broken.out, "");
    EXPECT_EQ(broken.err.find(path.toStdString() + ":1: the file lacks \"protocol\""), 0u)
        << broken.err;
    EXPECT_EQ(run({QStringLiteral("--car"), QStringLiteral("nobody")}).code, 2);
    const outcome unknown = run({QStringLiteral("--fault"), QStringLiteral("gremlins")});
    EXPECT_EQ(unknown.code, 2);
    EXPECT_EQ(std::ranges::count(unknown.err, '\n'), 2) << unknown.err;
    EXPECT_EQ(run({QStringLiteral("--replay"), path}).code, 2);
}

TEST(program_test, lists_cars_protocols_and_faults) {
    const outcome listed = run({QStringLiteral("--list")});
    EXPECT_EQ(listed.code, 0);
    for (const char* name :
         {"can11", "thirty", "iso_14230_fast", "close_after=N", "split_prompt[=MS]"})
        EXPECT_NE(listed.out.find(name), std::string::npos) << name;
}

} // namespace
