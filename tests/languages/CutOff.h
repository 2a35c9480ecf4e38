#pragma once

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QString>
#include <QWidget>

namespace barquell::test {

/// The room that the widget's text needs at its present width; nothing for a widget whose text is not ours.
inline QSize neededBy(const QWidget &widget) {
    if (const auto *label = qobject_cast<const QLabel *>(&widget)) {
        // A label that asks for no width of its own shows what the user has called something.
        if (label->text().isEmpty() || label->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored) {
            return {};
        }
        return label->wordWrap() ? QSize(0, label->heightForWidth(label->width())) : label->sizeHint();
    }
    const auto *button = qobject_cast<const QAbstractButton *>(&widget);
    const bool hasText = (button && !button->text().isEmpty()) || qobject_cast<const QComboBox *>(&widget);
    return hasText ? widget.sizeHint() : QSize();
}

inline bool liesWithinItsParents(const QWidget &widget, const QWidget &window) {
    for (const QWidget *parent = widget.parentWidget(); parent; parent = parent->parentWidget()) {
        if (!parent->rect().contains(QRect(widget.mapTo(parent, QPoint()), widget.size()))) {
            return false;
        }
        if (parent == &window) {
            break;
        }
    }
    return true;
}

/// The window's visible labels, buttons and combo boxes whose text does not show whole, a line each.
inline std::string cutOff(const QWidget &window) {
    QString found;
    for (const QWidget *widget : window.findChildren<QWidget *>()) {
        if (!widget->isVisibleTo(&window)) {
            continue;
        }
        const QSize needed = neededBy(*widget);
        const QSize given = widget->size();
        const bool tooSmall =
            needed.isValid() && (needed.width() > given.width() || needed.height() > given.height());
        const bool hidesOthers = widget->objectName() == QLatin1String("qt_toolbar_ext_button");
        if (tooSmall || hidesOthers || (needed.isValid() && !liesWithinItsParents(*widget, window))) {
            found.append(QStringLiteral("%1 needs %2x%3, has %4x%5\n")
                             .arg(widget->objectName())
                             .arg(needed.width())
                             .arg(needed.height())
                             .arg(given.width())
                             .arg(given.height()));
        }
    }
    return found.toStdString();
}

} // namespace barquell::test
