#include "Checks.h"
#include "Names.h"
#include "Report.h"

using namespace ZENTRA::API;

namespace {

struct StandardName {
    const char* name;
    symbol_type type;
    int a;
    int b;
};

constexpr StandardName standardNames[] = {
    {"r10", symbol_type::round, 1000, 1000},
    {"r10.5", symbol_type::round, 1050, 1050},
    {"r0.001", symbol_type::round, 0, 0},
    {"r0.005", symbol_type::round, 1, 1},
    {"r60000", symbol_type::round, 6000000, 6000000},
    {"s10", symbol_type::square, 1000, 1000},
    {"rect20x40", symbol_type::rectangle, 2000, 4000},
    {"rect20.25x40.5", symbol_type::rectangle, 2025, 4050},
    {"oval20x40", symbol_type::oval, 2000, 4000},
    {"diamond20x40", symbol_type::diamond, 2000, 4000},
    {"octagon20x40", symbol_type::octagon, 2000, 4000},
    {"octagon20x40x5", symbol_type::octagon, 2000, 4000},
    {"hexagon20x40", symbol_type::hexagon, 2000, 4000},
    {"hexagon20x40x5.5", symbol_type::hexagon, 2000, 4000},
    {"triangle20x40", symbol_type::triangle, 2000, 4000},
    {"ellipse20x40", symbol_type::ellipse, 2000, 4000},
    {"ring_r60x30", symbol_type::round_ring, 6000, 3000},
    {"ring_r60x59.9", symbol_type::round_ring, 6000, 5990},
    {"ring_s60x30", symbol_type::square_ring, 6000, 3000},
};

constexpr const char* refusedNames[] = {
    "",
    // No size, or none above 0
    "r", "s", "rect", "10", "x10", "r0", "r0.0", "s0", "r-1", "rect0x40", "rect20x0",
    "octagon20x40x0",
    // A number of sizes other than the shape's
    "r10x20", "rect20", "rect20x", "rectx20", "rect20x40x5", "oval20", "oval20x40x5", "diamond20",
    "diamond1x2x3", "octagon20", "octagon20x40x5x5", "hexagon20", "triangle20", "triangle1x2x3",
    "ellipse20", "ellipse1x2x3", "ring_r60",
    // A ring whose inner size is not the smaller one
    "ring_r60x60", "ring_r30x60", "ring_r60x0", "ring_s60x60",
    // Another spelling
    "R10", "rect20X40", "r1,5", "r1.2.3", "r1e3", "di20x40", "oct20x40x5", "ring60x30",
    "ring_t60x30", "user", " r10", "r10 ", "r 10", "r10\n",
    // With a rotation suffix
    "r10_45", "rect20x40_90"};

QString call(const char* name, bool arc)
{
    return QStringLiteral("identify_symbol(\"%1\", %2)")
        .arg(QLatin1String(name), arc ? QStringLiteral("arc") : QStringLiteral("no arc"));
}

void expectIdentified(Report& report, const StandardName& expected, bool arc, bool accepted)
{
    const QString what = call(expected.name, arc);
    report.run(what, [&] {
        const Identified answer = identify(expected.name, arc);
        if (!report.expect(what, accepted, answer.isKnown)) {
            return;
        }
        report.expect(what + QStringLiteral(": type"),
                      int(accepted ? expected.type : symbol_type::unknown), int(answer.type));
        report.expect(what + QStringLiteral(": first size"), accepted ? expected.a : 0, answer.a);
        report.expect(what + QStringLiteral(": second size"), accepted ? expected.b : 0, answer.b);
    });
}

using NamesOf = void (*)(const std::string& job, std::vector<std::string>& names);

QStringList namesOf(NamesOf function, const std::string& job)
{
    std::vector<std::string> names{"left over"};
    function(job, names);
    return texts(names);
}

void checkNamesOfJob(Report& report, const QString& function, NamesOf namesFunction,
                     const QString& job)
{
    const QString unknown = function + QStringLiteral("() of a job that is not known");
    report.run(unknown, [&] {
        report.expect(unknown, QStringList(), namesOf(namesFunction, "no such job of any host"));
    });
    const QString known = QStringLiteral("%1(\"%2\")").arg(function, job);
    if (job.isEmpty()) {
        report.untriedWithoutJob(function + QStringLiteral("() of a job"));
        return;
    }
    report.run(known, [&] {
        const QStringList names = namesOf(namesFunction, job.toStdString());
        report.expect(known + QStringLiteral(" keeps what was in the list"), false,
                      names.contains(QStringLiteral("left over")));
        report.expect(known + QStringLiteral(" a second time"), names,
                      namesOf(namesFunction, job.toStdString()));
        if (names.isEmpty()) {
            report.untried(known, QStringLiteral("the job has none"));
        }
    });
}

}  // namespace

void checkCamApi(Report& report, const Situation& situation)
{
    for (const StandardName& row : standardNames) {
        expectIdentified(report, row, false, true);
        expectIdentified(report, row, true, row.type == symbol_type::round);
    }
    for (const char* const name : refusedNames) {
        expectIdentified(report, {name, symbol_type::unknown, 0, 0}, false, false);
        expectIdentified(report, {name, symbol_type::unknown, 0, 0}, true, false);
    }
    checkNamesOfJob(report, QStringLiteral("get_fonts"), get_fonts, situation.job);
    checkNamesOfJob(report, QStringLiteral("get_special_symbol_names"), get_special_symbol_names,
                    situation.job);
}
