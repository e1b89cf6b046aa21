#include "SpeedTable.h"

#include <QApplication>
#include <QCommandLineParser>

#include <cstdio>

namespace {

void Print(const SpeedTable::Row& row, bool ratiosOnly)
{
    const SpeedTable::Rounds rounds = row.measure();
    const double path = SpeedTable::Median(rounds.path);
    const double rival = SpeedTable::Median(rounds.rival);
    const double ratio = path / rival;
    if (ratiosOnly)
        std::printf("%s\t%.3f\t%g\n", row.path, ratio, row.goal);
    else
        std::printf("%-14s %-52s %9.4f ms\n%-14s %-52s %9.4f ms\n%-14s ratio %.3f, goal %g: %s\n\n", row.name, row.path,
                    path * 1e3, "", row.rival, rival * 1e3, "", ratio, row.goal, ratio <= row.goal ? "met" : "missed");
    std::fflush(stdout);
}

} // namespace

int main(int argc, char* argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Measures each hot path beside its rival, in turn, by medians."));
    parser.addHelpOption();
    const QCommandLineOption ratios(QStringLiteral("ratios"), QStringLiteral("Print path, ratio and goal alone."));
    const QCommandLineOption only(QStringLiteral("row"), QStringLiteral("Run one row."), QStringLiteral("name"));
    const QCommandLineOption curve(QStringLiteral("shadow-curve"),
                                   QStringLiteral("Print what the shadow's rim costs as the widget grows."));
    parser.addOptions({ratios, only, curve});
    parser.process(application);
    if (parser.isSet(curve)) {
        SpeedTable::PrintShadowCurve();
        return 0;
    }

    std::vector<SpeedTable::Row> rows = SpeedTable::PreviewRows();
    for (auto* more : {SpeedTable::EffectRows, SpeedTable::PanelRows, SpeedTable::KitRows, SpeedTable::SliderRows,
                       SpeedTable::StartRows}) {
        for (SpeedTable::Row& row : more())
            rows.push_back(std::move(row));
    }
    bool found = false;
    for (const SpeedTable::Row& row : rows) {
        if (parser.isSet(only) && parser.value(only) != QLatin1String(row.name))
            continue;
        found = true;
        Print(row, parser.isSet(ratios));
    }
    if (!found)
        std::fprintf(stderr, "VxBenchmarks: there is no row '%s'\n", qPrintable(parser.value(only)));
    return found ? 0 : 2;
}
