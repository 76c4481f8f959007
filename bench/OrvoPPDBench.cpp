// Times OrvoPPD::ppdOpenFile + ppdClose against libcups' ppdOpenFile +
// ppdClose on the same files in the same run, and prints per-file and total
// ratios, the time-against-size growth exponent and one RESULT line.
//   orvoppd_bench [DIR]   (every *.ppd of DIR)
#include "OrvoPPD.h"
#include "OrvoPPD_Interface.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr int repetitions = 9;
constexpr size_t topCount = 10;

enum class Verdict { Structure, Null, Stops };

struct Measured {
    QString name;
    qint64 bytes;
    double orvo; // seconds, best of the repetitions
    double libcups;
};

// A file that stops the reader by design must not stop the benchmark.
Verdict verdictOf(const QByteArray &path) {
    const pid_t child = fork();
    if (child == 0) {
        ppd_file_t *ppd = OrvoPPD::ppdOpenFile(path.constData());
        _exit(ppd ? 0 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    if (!WIFEXITED(status))
        return Verdict::Stops;
    return WEXITSTATUS(status) == 0 ? Verdict::Structure : Verdict::Null;
}

template <typename Open> double timed(Open open) {
    const auto start = std::chrono::steady_clock::now();
    open();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// Best of several runs, the two readers taking turns so that both see the
// same machine load.
Measured measure(const QFileInfo &file) {
    const QByteArray path = file.filePath().toUtf8();
    Measured measured{file.fileName(), file.size(), INFINITY, INFINITY};
    for (int i = 0; i < repetitions; ++i) {
        measured.libcups = std::min(measured.libcups, timed([&] {
                                        if (ppd_file_t *ppd = r_ppdOpenFile(path.constData()))
                                            r_ppdClose(ppd);
                                    }));
        measured.orvo =
            std::min(measured.orvo,
                     timed([&] { OrvoPPD::ppdClose(OrvoPPD::ppdOpenFile(path.constData())); }));
    }
    return measured;
}

// Least-squares slope of log(time) against log(size).
double growthExponent(const std::vector<Measured> &files) {
    double sx = 0, sy = 0, sxx = 0, sxy = 0;
    for (const Measured &m : files) {
        const double x = std::log(double(m.bytes));
        const double y = std::log(m.orvo);
        sx += x, sy += y, sxx += x * x, sxy += x * y;
    }
    const double n = double(files.size());
    return (n * sxy - sx * sy) / (n * sxx - sx * sx);
}

// A PPD with the given number of options in groups of ten, five choices each.
QByteArray generatedPPD(int options) {
    QByteArray text = "*PPD-Adobe: \"4.3\"\n";
    for (int i = 0; i < options; ++i) {
        const QByteArray n = QByteArray::number(i);
        if (i % 10 == 0)
            text += "*OpenGroup: G" + n + "/Group " + n + "\n";
        text += "*OpenUI *Option" + n + "/Option " + n + ": PickOne\n*DefaultOption" + n + ": C0\n";
        for (int c = 0; c < 5; ++c)
            text +=
                "*Option" + n + " C" + QByteArray::number(c) + "/Choice: \"<</Code " + n + ">>\"\n";
        text += "*CloseUI: *Option" + n + "\n";
        if (i % 10 == 9 || i + 1 == options)
            text += "*CloseGroup: G" + QByteArray::number(i - i % 10) + "\n";
    }
    return text;
}

// Files of 500 to 8000 options: twice the options should take twice the time.
std::vector<Measured> generatedFiles() {
    std::vector<Measured> files;
    const QString path =
        QDir::temp().filePath(QStringLiteral("orvoppd-bench-%1.ppd").arg(getpid()));
    for (int options = 500; options <= 8000; options *= 2) {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
            break;
        file.write(generatedPPD(options));
        file.close();
        Measured measured = measure(QFileInfo(path));
        measured.name = QStringLiteral("%1 options").arg(options);
        files.push_back(measured);
    }
    QFile::remove(path);
    return files;
}

} // namespace

int main(int argc, char **argv) {
    const QDir dir(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral(ORVO_PPD_CORPUS));
    std::vector<Measured> opened;
    for (const QFileInfo &file : dir.entryInfoList({"*.ppd"}, QDir::Files, QDir::Size)) {
        const Verdict verdict = verdictOf(file.filePath().toUtf8());
        if (verdict != Verdict::Structure) {
            printf("not timed (%s): %s\n", verdict == Verdict::Null ? "null" : "stops",
                   qPrintable(file.fileName()));
            continue;
        }
        opened.push_back(measure(file));
    }
    if (opened.size() < 2) {
        fprintf(stderr, "fewer than two files open in %s\n", qPrintable(dir.path()));
        return 1;
    }
    printf("%10s %10s %10s %7s  %s\n", "bytes", "orvo ms", "libcups ms", "ratio", "file");
    double orvoTotal = 0, libcupsTotal = 0, maxTop = 0;
    for (size_t i = 0; i < opened.size(); ++i) {
        const Measured &m = opened[i];
        const double ratio = m.orvo / m.libcups;
        if (i < topCount)
            maxTop = std::max(maxTop, ratio);
        orvoTotal += m.orvo;
        libcupsTotal += m.libcups;
        printf("%10lld %10.3f %10.3f %7.2f  %s%s\n", m.bytes, m.orvo * 1e3, m.libcups * 1e3, ratio,
               i < topCount ? "[top] " : "", qPrintable(m.name));
    }
    const std::vector<Measured> generated = generatedFiles();
    for (const Measured &m : generated)
        printf("generated %10lld bytes %-13s orvo %8.3f ms, libcups %8.3f ms\n", m.bytes,
               qPrintable(m.name), m.orvo * 1e3, m.libcups * 1e3);
    printf("generated files: growth exponent orvo %.2f, libcups %.2f\n", growthExponent(generated),
           growthExponent([&] {
               std::vector<Measured> libcups = generated;
               for (Measured &m : libcups)
                   m.orvo = m.libcups;
               return libcups;
           }()));
    printf("total %d files: orvo %.3f ms, libcups %.3f ms\n", int(opened.size()), orvoTotal * 1e3,
           libcupsTotal * 1e3);
    printf("RESULT orvoppd_vs_libcups_max_top10=%.2f orvoppd_vs_libcups_total=%.2f "
           "orvoppd_growth_exponent=%.2f\n",
           maxTop, orvoTotal / libcupsTotal, growthExponent(opened));
    return 0;
}
