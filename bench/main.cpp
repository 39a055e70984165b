// kestrom-bench: runs all rows, or those matching --benchmark_filter=REGEX, and prints them with
// their targets. Exit status 1 if a target was missed.
#include "ratio_table.h"
#include "rows.h"

#include <QGuiApplication>

#include <benchmark/benchmark.h>

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    ratio_table table;
    add_decoding_rows(table);
    add_table_rows(table);
    add_drawing_rows(table);
    add_export_rows(table);
    benchmark::RunSpecifiedBenchmarks();
    return table.print() ? 0 : 1;
}
