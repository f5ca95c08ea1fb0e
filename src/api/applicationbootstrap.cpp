// SPDX-License-Identifier: MIT
#include "applicationbootstrap.h"

#include <QApplication>

namespace OrvGui {

void ensureApplication()
{
    if (QCoreApplication::instance())
        return;
    static int argumentCount = 0; // the application keeps a reference to it
    static char *arguments[] = {nullptr};
    new QApplication(argumentCount, arguments);
}

} // namespace OrvGui
