// A job of many tested cables with curves: time and memory beside those of a bare QDomDocument.
//
//     bench_bigjob make N FILE     makes the job
//     bench_bigjob job FILE        loads it, lists the cables, changes one result, saves
//     bench_bigjob bare FILE       parses the same text and writes it back, with Qt's means only

#include <cabledoc/jobeditor.h>

#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QTextStream>
#include <QtXml/QDomDocument>

#include <cstdio>
#include <cstring>

namespace {

/// What the process holds in memory at this moment, in MB.
double residentMegabytes()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray text = status.readAll();
    const auto position = text.indexOf("VmRSS:");
    return text.mid(position + 6).simplified().split(' ').constFirst().toDouble() / 1024;
}

void report(const char *what, QElapsedTimer *timer)
{
    std::printf("%-28s %8lld ms %8.0f MB\n", what, static_cast<long long>(timer->elapsed()), residentMegabytes());
    timer->restart();
}

int fail(const QString &message)
{
    std::fprintf(stderr, "bench_bigjob: %s\n", qPrintable(message));
    return 1;
}

TRUEPHY_PLOT_DATA curve(int seed)
{
    TRUEPHY_PLOT_DATA curve{};
    for (int i = 0; i < TRUEPHY_PLOT_DATA::sampleCount; ++i) {
        curve.plot_a[i] = (seed + i * 7919) % 60000 - 30000;
        curve.plot_b[i] = (seed + i * 7907) % 60000 - 30000;
    }
    curve.count = TRUEPHY_PLOT_DATA::sampleCount;
    return curve;
}

int make(int cables, const QString &fileName)
{
    JobEditor &job = JobEditor::Instance();
    job.New(fileName);
    for (int i = 0; i < cables; ++i) {
        TestResults results(QString(), QStringLiteral("PASS"), cable_struct::untested(), 0);
        results.setNEXT(curve(i));
        results.setEcho(curve(i + 1));
        results.setChannel(curve(i + 2));
        job.addCable(QString(), QString(), QStringLiteral("data"), QStringLiteral("P1"), QStringLiteral("P2"),
                     QStringLiteral("CAT6"), results, 0);
    }
    return job.save() ? 0 : fail(job.error());
}

int useJob(const QString &fileName)
{
    QElapsedTimer timer;
    timer.start();
    JobEditor &job = JobEditor::Instance();
    if (!job.Load(fileName))
        return fail(job.error());
    report("load", &timer);
    int passed = 0;
    const QStringList tags = job.getCables(true);
    for (const QString &tag : tags)
        passed += job.getCableTestResults(tag).status() == QLatin1String("PASS") ? 1 : 0;
    report("read all test results", &timer);
    TestResults results = job.getCableTestResults(tags.constLast());
    results.setStatus(QStringLiteral("FAIL"));
    job.setCableTestResults(tags.constLast(), results);
    report("change one result", &timer);
    if (!job.saveAs(fileName + QStringLiteral(".out")))
        return fail(job.error());
    report("save", &timer);
    return 0;
}

int useBareTree(const QString &fileName)
{
    QElapsedTimer timer;
    timer.start();
    QDomDocument document;
    {
        QFile file(fileName);
        if (!file.open(QIODevice::ReadOnly) || !document.setContent(QString::fromLatin1(file.readAll())))
            return fail(QStringLiteral("cannot parse"));
    }
    report("parse", &timer);
    {
        QFile file(fileName + QStringLiteral(".out"));
        if (!file.open(QIODevice::WriteOnly) || file.write(document.toString(1).toLatin1()) < 0)
            return fail(file.errorString());
    }
    report("write", &timer);
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc == 4 && std::strcmp(argv[1], "make") == 0)
        return make(QByteArray(argv[2]).toInt(), QFile::decodeName(argv[3]));
    if (argc == 3 && std::strcmp(argv[1], "job") == 0)
        return useJob(QFile::decodeName(argv[2]));
    if (argc == 3 && std::strcmp(argv[1], "bare") == 0)
        return useBareTree(QFile::decodeName(argv[2]));
    return fail(QStringLiteral("make N FILE, job FILE or bare FILE is needed"));
}
