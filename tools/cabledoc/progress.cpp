#include "progress.h"

#include "output.h"

#include <algorithm>
#include <cstdio>

#include <sys/ioctl.h>
#include <unistd.h>

namespace {

/// Moves to the beginning of the line and empties it.
const char emptyLine[] = "\r\033[K";

bool canShow()
{
    return !isQuiet() && ::isatty(STDERR_FILENO) == 1 && qgetenv("TERM") != "dumb";
}

int terminalWidth()
{
    constexpr int usual = 80;
    winsize size{};
    return ::ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : usual;
}

/// Returns the number of columns that a text takes at most.
int columnsOf(const QString &text)
{
    const auto isWide = [](QChar character) { return character.unicode() > 0xFF; };
    return int(text.size() + std::count_if(text.cbegin(), text.cend(), isWide));
}

} // namespace

Progress::Progress(const QString &step)
    : m_step(printable(step))
{
    if (canShow())
        start();
}

Progress::~Progress()
{
    m_end.release();
    wait();
}

void Progress::run()
{
    constexpr int second = 1000; // milliseconds
    int seconds = 0;
    while (!m_end.tryAcquire(1, second)) {
        QString line = Program::tr("%1, %2 s").arg(m_step, QString::number(++seconds));
        // A line that the terminal breaks could not be removed.
        while (columnsOf(line) >= terminalWidth())
            line.remove(0, 1);
        std::fprintf(stderr, "%s%s", emptyLine, qPrintable(line));
    }
    if (seconds > 0)
        std::fputs(emptyLine, stderr);
}
