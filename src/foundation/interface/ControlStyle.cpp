#include "foundation/interface/ControlStyle.h"

#include <QApplication>
#include <QStyleOption>

#include <algorithm>
#include <cmath>
#include <memory>

namespace barquell {

namespace {

constexpr auto kFusion = "fusion";

// WCAG 2.1, success criteria 1.4.11 (the least that the outline of a control has) and 1.4.6 (enhanced text).
constexpr double kLeastOutline = 3;
constexpr double kEnhanced = 7;
// The mark of a radio button is drawn smoothed, which takes some of its colour away.
constexpr double kSmoothed = 1.25;

constexpr int kBesideText = 10; // from a button's text to its edge

constexpr double kShareOfDisabled = 0.6; // of the text in the colour of what is disabled

constexpr double kNearlyBlack = 0.01; // of a luminance from 0 to 1
constexpr double kNearlyWhite = 0.99;

/// WCAG 2.1, "relative luminance".
double luminance(const QColor &color) {
    const auto linear = [](double share) {
        return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

QColor between(const QColor &one, const QColor &other, double share) {
    const auto mixed = [share](double from, double to) {
        return static_cast<float>(from + (to - from) * share);
    };
    return QColor::fromRgbF(mixed(one.redF(), other.redF()), mixed(one.greenF(), other.greenF()),
                            mixed(one.blueF(), other.blueF()));
}

/// The colour from which Fusion's shades come out far enough from the window.
QColor windowFor(const QPalette &palette) {
    const QColor window = palette.color(QPalette::Window);
    const QColor text = palette.color(QPalette::Active, QPalette::WindowText);
    if (isHighContrast(palette)) {
        return text;
    }
    constexpr int kSteps = 32;
    for (int step = 0; step < kSteps; ++step) {
        const QColor color = between(window, text, static_cast<double>(step) / kSteps);
        const double weaker = std::min(contrastBetween(color.darker(140).lighter(110), window),
                                       contrastBetween(color.darker(150), window));
        if (weaker >= kLeastOutline * kSmoothed) {
            return color;
        }
    }
    return text;
}

bool isMark(QStyle::PrimitiveElement element) {
    return element == QStyle::PE_IndicatorCheckBox || element == QStyle::PE_IndicatorRadioButton;
}

/// What Fusion gives an outline and fills with no shade of the window.
bool hasOutline(QStyle::PrimitiveElement element) {
    switch (element) {
    case QStyle::PE_Frame:
    case QStyle::PE_FrameLineEdit:
    case QStyle::PE_FrameMenu:
    case QStyle::PE_PanelButtonCommand:
    case QStyle::PE_PanelButtonTool:
    case QStyle::PE_PanelLineEdit:
    case QStyle::PE_PanelMenu:
        return true;
    default:
        return isMark(element);
    }
}

} // namespace

double contrastBetween(const QColor &one, const QColor &other) {
    constexpr double kGlare = 0.05;
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + kGlare) / (darker + kGlare);
}

bool isHighContrast(const QPalette &palette) {
    const double background = luminance(palette.color(QPalette::Window));
    return (background < kNearlyBlack || background > kNearlyWhite) &&
           contrastBetween(palette.color(QPalette::Window),
                           palette.color(QPalette::Active, QPalette::WindowText)) >= kEnhanced;
}

ControlStyle::ControlStyle() : QProxyStyle(QString::fromLatin1(kFusion)) {}

void ControlStyle::polish(QPalette &palette) {
    QProxyStyle::polish(palette);
    const QColor window = palette.color(QPalette::Active, QPalette::Window);
    const QColor text = palette.color(QPalette::Active, QPalette::WindowText);
    palette.setCurrentColorGroup(QPalette::Active);
    if (!isHighContrast(palette)) {
        return;
    }
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        if (contrastBetween(palette.color(QPalette::Disabled, role), window) < kLeastOutline) {
            palette.setColor(QPalette::Disabled, role, between(window, text, kShareOfDisabled));
        }
    }
}

QPalette ControlStyle::outlined(const QPalette &palette) const {
    if (_last && palette.cacheKey() == _last->palette.cacheKey()) {
        return palette; // of a part that a control draws in its turn
    }
    if (!_last || palette.cacheKey() != _last->source) {
        _last = {palette.cacheKey(), palette};
        QPalette source = palette;
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            source.setCurrentColorGroup(group);
            _last->palette.setColor(group, QPalette::Window, windowFor(source));
        }
    }
    _last->palette.setCurrentColorGroup(palette.currentColorGroup());
    return _last->palette;
}

void ControlStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                                 const QWidget *widget) const {
    if (!hasOutline(element) || !(isMark(element) || isHighContrast(option->palette))) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    const auto draw = [&](auto copy) {
        copy.palette = outlined(option->palette);
        QProxyStyle::drawPrimitive(element, &copy, painter, widget);
    };
    if (const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option)) {
        draw(*button);
    } else if (const auto *frame = qstyleoption_cast<const QStyleOptionFrame *>(option)) {
        draw(*frame);
    } else {
        draw(QStyleOption(*option));
    }
}

void ControlStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                      QPainter *painter, const QWidget *widget) const {
    const auto *slider = qstyleoption_cast<const QStyleOptionSlider *>(option);
    if (control != CC_ScrollBar || !slider || !isHighContrast(option->palette)) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    QStyleOptionSlider copy(*slider);
    copy.palette = outlined(option->palette);
    QProxyStyle::drawComplexControl(control, &copy, painter, widget);
}

QSize ControlStyle::sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                                     const QWidget *widget) const {
    QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option);
    if (type == CT_PushButton && button && !button->text.isEmpty()) {
        size.setWidth(std::max(size.width(), contents.width() + 2 * kBesideText));
    }
    return size;
}

void installControlStyle() {
    if (QApplication::style()->name() == QLatin1String(kFusion)) {
        QApplication::setStyle(std::make_unique<ControlStyle>().release()); // the application's
    }
}

} // namespace barquell
