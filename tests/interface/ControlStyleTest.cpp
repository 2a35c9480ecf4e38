#include "foundation/interface/ControlStyle.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QStyleFactory>
#include <QStyleOptionButton>
#include <QToolButton>

#include <gmock/gmock.h>

namespace barquell::test {

namespace {

struct Colors {
    const char *name;
    QPalette palette;
};

void PrintTo(const Colors &colors, std::ostream *stream) {
    *stream << colors.name;
}

QPalette twoColors(const QColor &background, const QColor &text) {
    QPalette palette(background, background);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, text);
    }
    palette.setColor(QPalette::Base, background);
    return palette;
}

QPalette darkColors() {
    QPalette palette(QColor(0x35, 0x36, 0x38), QColor(0x2a, 0x2b, 0x2d));
    palette.setColor(QPalette::Base, QColor(0x22, 0x23, 0x25));
    return palette;
}

std::vector<Colors> highContrastColors() {
    return {{"white on black", twoColors(Qt::black, Qt::white)},
            {"black on white", twoColors(Qt::white, Qt::black)},
            {"yellow on black", twoColors(Qt::black, Qt::yellow)},
            {"green on black", twoColors(Qt::black, Qt::green)}};
}

std::vector<Colors> plainColors() {
    return {{"light", QPalette(QColor(0xef, 0xef, 0xef))}, {"dark", darkColors()}};
}

/// The strongest contrast against the window in the first few pixels from each side of the rectangle, in the
/// middle of that side; of the four the weakest.
double weakestSide(QWidget &widget, const QRect &rect) {
    constexpr int kDepth = 4;
    const QImage image = widget.grab().toImage();
    const QColor window = widget.palette().color(QPalette::Window);
    const auto strongest = [&](QPoint from, QPoint step) {
        double found = 1;
        for (int depth = 0; depth < kDepth; ++depth) {
            found = std::max(found, contrastBetween(image.pixelColor(from + step * depth), window));
        }
        return found;
    };
    const QPoint middle = rect.center();
    return std::min(
        {strongest({rect.left(), middle.y()}, {1, 0}), strongest({rect.right(), middle.y()}, {-1, 0}),
         strongest({middle.x(), rect.top()}, {0, 1}), strongest({middle.x(), rect.bottom()}, {0, -1})});
}

/// A control at rest in those colours, drawn by that style.
template <typename Control>
std::unique_ptr<Control> drawn(QStyle &style, const QPalette &palette) {
    auto control = std::make_unique<Control>();
    control->setStyle(&style);
    control->setPalette(palette);
    control->resize(120, 40);
    return control;
}

double markOutline(QWidget &button) {
    QStyleOptionButton option;
    option.initFrom(&button);
    const auto part = qobject_cast<QRadioButton *>(&button) ? QStyle::SE_RadioButtonIndicator
                                                            : QStyle::SE_CheckBoxIndicator;
    return weakestSide(button, button.style()->subElementRect(part, &option, &button));
}

template <typename Button>
double markOutline(QStyle &style, const QPalette &palette) {
    return markOutline(*drawn<Button>(style, palette));
}

template <typename Control>
double outline(QStyle &style, const QPalette &palette) {
    const auto control = drawn<Control>(style, palette);
    return weakestSide(*control, control->rect());
}

constexpr double kLeast = 3;

class ControlStyleTest : public testing::TestWithParam<Colors> {
protected:
    ControlStyle style;
    QPalette palette = GetParam().palette;
};

class HighContrastTest : public ControlStyleTest {};

TEST_P(ControlStyleTest, MarksStandOutFromTheWindow) {
    EXPECT_GE(markOutline<QCheckBox>(style, palette), kLeast);
    EXPECT_GE(markOutline<QRadioButton>(style, palette), kLeast);
}

TEST_P(HighContrastTest, IsSeenByThePalette) {
    EXPECT_TRUE(isHighContrast(palette));
}

TEST_P(HighContrastTest, EveryControlStandsOutFromTheWindow) {
    EXPECT_GE(outline<QPushButton>(style, palette), kLeast);
    EXPECT_GE(outline<QComboBox>(style, palette), kLeast);
    EXPECT_GE(outline<QLineEdit>(style, palette), kLeast);
    EXPECT_GE(outline<QListWidget>(style, palette), kLeast);
}

TEST_P(HighContrastTest, TheEndOfAScrollBarsSliderStandsOut) {
    const auto bar = drawn<QScrollBar>(style, palette);
    bar->setOrientation(Qt::Vertical);
    bar->resize(16, 200);
    QStyleOptionSlider option;
    option.initFrom(bar.get());
    option.orientation = Qt::Vertical;
    option.maximum = bar->maximum();
    option.pageStep = bar->pageStep();
    const QRect slider =
        style.subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, bar.get());
    const QImage image = bar->grab().toImage();
    double contrast = 1;
    for (int y = slider.bottom() - 2; y <= slider.bottom() + 2; ++y) {
        contrast = std::max(contrast, contrastBetween(image.pixelColor(slider.center().x(), y),
                                                      palette.color(QPalette::Window)));
    }
    EXPECT_GE(contrast, kLeast);
}

TEST_P(HighContrastTest, AMenuStandsOutFromTheWindow) {
    const auto menu = drawn<QMenu>(style, palette);
    menu->addAction(QStringLiteral("Item"));
    menu->resize(120, 40);
    EXPECT_GE(weakestSide(*menu, menu->rect()), kLeast);
    EXPECT_LT(contrastBetween(menu->grab().toImage().pixelColor(60, 35), palette.color(QPalette::Window)),
              kLeast);
}

TEST_P(HighContrastTest, TheChosenToolStandsOutFromTheWindow) {
    const auto tool = drawn<QToolButton>(style, palette);
    tool->setCheckable(true);
    tool->setChecked(true);
    EXPECT_GE(weakestSide(*tool, tool->rect()), kLeast);
}

TEST_P(HighContrastTest, ADisabledControlStandsOutToo) {
    const auto button = drawn<QPushButton>(style, palette);
    button->setEnabled(false);
    EXPECT_GE(weakestSide(*button, button->rect()), kLeast);
}

std::vector<Colors> allColors() {
    std::vector<Colors> all = plainColors();
    for (const Colors &colors : highContrastColors()) {
        all.push_back(colors);
    }
    return all;
}

INSTANTIATE_TEST_SUITE_P(Colors, ControlStyleTest, testing::ValuesIn(allColors()));
INSTANTIATE_TEST_SUITE_P(Colors, HighContrastTest, testing::ValuesIn(highContrastColors()));

TEST(ControlStyleAloneTest, FusionItselfDrawsNoOutlineOnBlack) {
    const std::unique_ptr<QStyle> fusion(QStyleFactory::create(QStringLiteral("Fusion")));
    EXPECT_LT(outline<QPushButton>(*fusion, twoColors(Qt::black, Qt::white)), kLeast);
    EXPECT_LT(markOutline<QCheckBox>(*fusion, twoColors(Qt::black, Qt::white)), kLeast);
    EXPECT_LT(markOutline<QRadioButton>(*fusion, darkColors()), kLeast);
}

TEST(ControlStyleAloneTest, PlainColorsAreNoHighContrast) {
    for (const Colors &colors : plainColors()) {
        EXPECT_FALSE(isHighContrast(colors.palette)) << colors.name;
    }
    EXPECT_FALSE(isHighContrast(twoColors(Qt::black, QColor(0x60, 0x60, 0x60))));
}

TEST(ControlStyleAloneTest, LeavesTheRestOfPlainColorsAsFusionHasIt) {
    ControlStyle style;
    const std::unique_ptr<QStyle> fusion(QStyleFactory::create(QStringLiteral("Fusion")));
    const auto ours = drawn<QPushButton>(style, darkColors());
    const auto theirs = drawn<QPushButton>(*fusion, darkColors());
    EXPECT_EQ(ours->grab().toImage(), theirs->grab().toImage());
}

TEST(ControlStyleAloneTest, FollowsAPaletteThatTurns) {
    ControlStyle style;
    const auto box = drawn<QPushButton>(style, darkColors());
    EXPECT_LT(weakestSide(*box, box->rect()), kLeast);
    box->setPalette(twoColors(Qt::black, Qt::white));
    EXPECT_GE(weakestSide(*box, box->rect()), kLeast);
    box->setPalette(darkColors());
    EXPECT_LT(weakestSide(*box, box->rect()), kLeast);
}

TEST(ControlStyleAloneTest, OutlinesWhatHasThePaletteOfTheApplication) {
    QApplication::setPalette(darkColors());
    ControlStyle style;
    QCheckBox box;
    box.setStyle(&style);
    box.resize(120, 40);
    EXPECT_GE(markOutline(box), kLeast);
}

TEST(ControlStyleAloneTest, WhatIsDisabledCanBeReadInHighContrast) {
    ControlStyle style;
    QPalette palette = twoColors(Qt::black, Qt::white);
    constexpr std::array kTexts{QPalette::WindowText, QPalette::Text, QPalette::ButtonText};
    for (const auto role : kTexts) {
        palette.setColor(QPalette::Disabled, role, Qt::black);
    }
    style.polish(palette);
    for (const auto role : kTexts) {
        const double contrast = contrastBetween(palette.color(QPalette::Disabled, role), Qt::black);
        EXPECT_GE(contrast, kLeast);
        EXPECT_LT(contrast, 15);
    }
}

TEST(ControlStyleAloneTest, ContrastIsMeasuredAsForTexts) {
    EXPECT_NEAR(contrastBetween(Qt::black, Qt::white), 21, 0.01);
    EXPECT_NEAR(contrastBetween(Qt::white, QColor(0x76, 0x76, 0x76)), 4.54, 0.01);
    EXPECT_NEAR(contrastBetween(Qt::red, Qt::red), 1, 0.001);
}

TEST(ControlStyleAloneTest, LeavesRoomBesideTheTextOfAButton) {
    ControlStyle style;
    QPushButton button(QStringLiteral("A text that is wider than any button's least width"));
    button.setStyle(&style);
    const int text = button.fontMetrics().horizontalAdvance(button.text());
    EXPECT_GE(button.sizeHint().width(), text + 16);
}

TEST(ControlStyleAloneTest, TakesThePlaceOfFusionAndOfNothingElse) {
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Windows")));
    installControlStyle();
    EXPECT_EQ(qobject_cast<ControlStyle *>(QApplication::style()), nullptr);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    installControlStyle();
    EXPECT_NE(qobject_cast<ControlStyle *>(QApplication::style()), nullptr);
}

} // namespace

} // namespace barquell::test
