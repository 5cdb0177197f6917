#include "table.h"

#include "platform/settings/settings.h"

#include <QApplication>
#include <QTemporaryDir>

#include <cstdio>
#include <fstream>

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const QTemporaryDir configuration;
    settings::setFolder(configuration.path());

    benchmark::Initialize(&argc, argv);
    if (argc > 2) {
        std::fprintf(stderr, "usage: kelvane-bench [--benchmark_...] [FILE for the table]\n");
        return 2;
    }
    TableReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    std::string table = reporter.table();
    for (const std::string &further : {reporter.viewsTable(), reporter.stepsTable(), reporter.readersTable()})
        if (!further.empty())
            table += "\n" + further;
    std::printf("\n%s", table.c_str());
    if (argc == 2 && !(std::ofstream(argv[1]) << table)) {
        std::fprintf(stderr, "%s cannot be written\n", argv[1]);
        return 1;
    }
    return 0;
}
