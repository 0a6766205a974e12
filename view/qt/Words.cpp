#include "view/qt/Words.h"

#include "view/qt/TextScale.h"

#include <QApplication>

namespace corvellane::view {

QString localized(const std::string& key)
{
    return QCoreApplication::translate("Installer", key.c_str());
}

QFont fontOf(const Font& font)
{
    QFont result = QApplication::font();
    result.setPixelSize(qRound(font.size * textScale()));
    result.setBold(font.bold);
    return result;
}

} // namespace corvellane::view
