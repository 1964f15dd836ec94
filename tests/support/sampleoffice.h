#pragma once

#include "programs.h"

/// Returns an environment in which "cabledoc" is in the path and speaks English.
inline QProcessEnvironment programEnvironment()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("PATH", CABLEDOC_PROGRAM_FOLDER ":" + environment.value("PATH"));
    environment.insert("LANGUAGE", "en");
    return environment;
}

/// Makes the file office.job of the sample office in a folder.
inline void planOffice(const QString &folder)
{
    printedBy(CABLEDOC_EXAMPLES "/office/plan.sh", {}, folder, programEnvironment());
}
