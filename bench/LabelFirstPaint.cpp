#include "bench/FirstPaint.h"

#include <QApplication>
#include <QLabel>

int main(int count, char** arguments)
{
    const QApplication platform(count, arguments);
    QLabel window(QStringLiteral("You will be guided through the steps necessary to use this software."));
    window.resize(648, 405);
    const corvellane::EndAtFirstPaint end;
    window.show();
    return QApplication::exec();
}
