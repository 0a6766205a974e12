#include "bench/FirstPaint.h"

#include <QApplication>
#include <QWidget>

int main(int count, char** arguments)
{
    const QApplication platform(count, arguments);
    QWidget window;
    window.resize(648, 405);
    const corvellane::EndAtFirstPaint end;
    window.show();
    return QApplication::exec();
}
