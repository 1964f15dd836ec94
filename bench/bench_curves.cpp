// Compares the encoding and decoding of a response curve with the obvious way in Qt, and with the bare conversion of
// the same numbers.

#include "ratios.h"

#include <cabledoc/bkxmleditor.h>

#include <QtCore/QStringList>

#include <array>
#include <charconv>

namespace {

constexpr int numberCount = 2 * TRUEPHY_PLOT_DATA::sampleCount + 1;

TRUEPHY_PLOT_DATA curve()
{
    TRUEPHY_PLOT_DATA curve{};
    for (int i = 0; i < TRUEPHY_PLOT_DATA::sampleCount; ++i) {
        curve.plot_a[i] = (i * 7919) % 60000 - 30000;
        curve.plot_b[i] = (i * 104729) % 60000 - 30000;
    }
    curve.count = TRUEPHY_PLOT_DATA::sampleCount;
    return curve;
}

void decode(benchmark::State &state)
{
    const QString text = BKXMLEditor::responseDataToString(curve());
    for (auto _ : state) {
        TRUEPHY_PLOT_DATA decoded = BKXMLEditor::responseStringToData(text);
        benchmark::DoNotOptimize(decoded);
    }
}

void decodeBySplit(benchmark::State &state)
{
    const QString text = BKXMLEditor::responseDataToString(curve());
    for (auto _ : state) {
        TRUEPHY_PLOT_DATA decoded{};
        const QStringList parts = text.split(QLatin1Char(','));
        for (int i = 0; i < TRUEPHY_PLOT_DATA::sampleCount; ++i) {
            decoded.plot_a[i] = qint32(parts.at(i).toLong());
            decoded.plot_b[i] = qint32(parts.at(i + TRUEPHY_PLOT_DATA::sampleCount).toLong());
        }
        decoded.count = qint32(parts.at(numberCount - 1).toLong());
        benchmark::DoNotOptimize(decoded);
    }
}

void decodeByFromChars(benchmark::State &state)
{
    const QByteArray text = BKXMLEditor::responseDataToString(curve()).toLatin1();
    for (auto _ : state) {
        std::array<qint32, numberCount> decoded{};
        const char *next = text.constData();
        const char *end = next + text.size();
        for (qint32 &number : decoded)
            next = std::from_chars(next, end, number).ptr + 1;
        benchmark::DoNotOptimize(decoded);
    }
}

void encode(benchmark::State &state)
{
    const TRUEPHY_PLOT_DATA data = curve();
    for (auto _ : state) {
        QString text = BKXMLEditor::responseDataToString(data);
        benchmark::DoNotOptimize(text);
    }
}

void encodeByNumber(benchmark::State &state)
{
    const TRUEPHY_PLOT_DATA data = curve();
    for (auto _ : state) {
        QString text;
        for (const qint32 sample : data.plot_a)
            text += QString::number(sample) + QLatin1Char(',');
        for (const qint32 sample : data.plot_b)
            text += QString::number(sample) + QLatin1Char(',');
        text += QString::number(data.count) + QLatin1Char(',');
        benchmark::DoNotOptimize(text);
    }
}

void encodeByToChars(benchmark::State &state)
{
    const TRUEPHY_PLOT_DATA data = curve();
    for (auto _ : state) {
        std::array<char, (numberCount + 1) * 12> text;
        char *next = text.data();
        const auto write = [&](qint32 number) {
            next = std::to_chars(next, next + 12, number).ptr;
            *next++ = ',';
        };
        for (const qint32 sample : data.plot_a)
            write(sample);
        for (const qint32 sample : data.plot_b)
            write(sample);
        write(data.count);
        benchmark::DoNotOptimize(text);
        benchmark::DoNotOptimize(next);
    }
}

BENCHMARK(decode);
BENCHMARK(decodeBySplit);
BENCHMARK(decodeByFromChars);
BENCHMARK(encode);
BENCHMARK(encodeByNumber);
BENCHMARK(encodeByToChars);

} // namespace

int main(int argc, char *argv[])
{
    return runBenchmarks(argc, argv,
                         {{"decode", "decodeBySplit"},
                          {"decode", "decodeByFromChars"},
                          {"encode", "encodeByNumber"},
                          {"encode", "encodeByToChars"}});
}
