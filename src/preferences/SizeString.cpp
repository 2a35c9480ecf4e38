#include "preferences/SizeString.h"

#include <QRegularExpression>

namespace barquell {

namespace {

constexpr int kDigits = 17; // enough to read every double back as it was

} // namespace

QString stringFromSize(const QSizeF &size) {
    return QStringLiteral("{%1, %2}").arg(size.width(), 0, 'g', kDigits).arg(size.height(), 0, 'g', kDigits);
}

QSizeF sizeFromString(const QString &text) {
    static const QRegularExpression number(
        QStringLiteral("[+-]?(?:[0-9]+\\.?[0-9]*|\\.[0-9]+)(?:[eE][+-]?[0-9]+)?"));
    QSizeF size(0, 0);
    auto numbers = number.globalMatch(text);
    if (numbers.hasNext()) {
        size.setWidth(numbers.next().captured().toDouble());
    }
    if (numbers.hasNext()) {
        size.setHeight(numbers.next().captured().toDouble());
    }
    return size;
}

} // namespace barquell
