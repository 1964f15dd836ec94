#pragma once

#include <QtCore/QSemaphore>
#include <QtCore/QString>
#include <QtCore/QThread>

/// Shows what the program is doing, such as "reading office.job", while an object of this class exists. After a second
/// it writes one line to standard error, and removes the line at the end. It shows nothing if standard error is not a
/// terminal, or if messages are suppressed.
class Progress : private QThread
{
public:
    explicit Progress(const QString &step);
    ~Progress() override;
    Q_DISABLE_COPY(Progress)

private:
    void run() override;

    const QString m_step;
    QSemaphore m_end;
};
