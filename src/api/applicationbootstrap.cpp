// SPDX-License-Identifier: MIT
#include "applicationbootstrap.h"

#include <QApplication>

namespace OrvGui {

void ensureApplication()
{
    if (QCoreApplication::instance())
        return;
#if QT_VERSION < 0x060000
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps); // as Qt 6 always does
#endif
    static int argumentCount = 0; // the application keeps a reference to it
    static char *arguments[] = {nullptr};
    new QApplication(argumentCount, arguments);
}

} // namespace OrvGui
