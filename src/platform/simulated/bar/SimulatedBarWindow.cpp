#include "platform/simulated/bar/SimulatedBarWindow.h"

#include "foundation/Bundle.h"
#include "foundation/interface/FreeRoom.h"
#include "platform/AppLifecycle.h"
#include "platform/Platform.h"
#include "platform/simulated/bar/BarView.h"

#include <QCheckBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace barquell {

namespace {

constexpr int kMargin = 10;

QString text(const char *key) {
    return Bundle::localizedString(QString::fromLatin1(key));
}

} // namespace

SimulatedBarWindow::SimulatedBarWindow(const BarControls &controls)
    : QWidget(nullptr, Qt::Window | Qt::WindowDoesNotAcceptFocus | Qt::CustomizeWindowHint |
                           Qt::WindowTitleHint | Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint),
      _bar(new BarView(controls, this)), _trust(new QCheckBox(text("Barquell may filter touches"), this)),
      _prompt(new QLabel(this)), _counts(new QLabel(this)) {
    setObjectName(QStringLiteral("SimulatedBarWindow"));
    setWindowTitle(text("Simulated Touch Bar"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    auto column = std::make_unique<QVBoxLayout>();
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->addWidget(_bar);
    column->addWidget(makeSwitches().release());
    column->setSizeConstraint(QLayout::SetFixedSize);
    setLayout(column.release());
    showCounts(0, 0);
    adjustSize();
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    move(std::max(screen.left(), screen.center().x() - width() / 2),
         screen.bottom() + 1 - height() - titleHeight(*this));
    keepClear(*this);
}

void SimulatedBarWindow::closeEvent(QCloseEvent *event) {
    QWidget::closeEvent(event);
    if (platform().appLifecycle) {
        platform().appLifecycle->terminate();
    }
}

std::unique_ptr<QWidget> SimulatedBarWindow::makeSwitches() {
    auto row = std::make_unique<QWidget>();
    auto layout = std::make_unique<QHBoxLayout>();
    layout->setContentsMargins(0, 0, 0, 0);
    auto fn = std::make_unique<QPushButton>(text("Fn"));
    fn->setObjectName(QStringLiteral("fnButton"));
    fn->setCheckable(true); // one hand has but one mouse: it stays down until it is clicked again
    fn->setToolTip(text("Hold Fn"));
    fn->setFocusPolicy(Qt::NoFocus);
    connect(fn.get(), &QPushButton::toggled, this, [this](bool held) {
        if (_fnHandler) {
            _fnHandler(held);
        }
    });
    _trust->setObjectName(QStringLiteral("trustCheckBox"));
    _trust->setFocusPolicy(Qt::NoFocus);
    connect(_trust, &QCheckBox::toggled, this, [this](bool given) {
        _prompt->clear();
        if (_trustHandler) {
            _trustHandler(given);
        }
    });
    layout->addWidget(fn.release());
    layout->addSpacing(kMargin);
    layout->addWidget(_trust);
    layout->addWidget(_prompt);
    layout->addStretch();
    layout->addWidget(_counts);
    row->setLayout(layout.release());
    return row;
}

void SimulatedBarWindow::setTouchHandler(std::function<void(const std::vector<BarTouch> &)> handler) {
    _bar->setTouchHandler(std::move(handler));
}

void SimulatedBarWindow::setFnHandler(std::function<void(bool)> handler) {
    _fnHandler = std::move(handler);
}

void SimulatedBarWindow::setTrustHandler(std::function<void(bool)> handler) {
    _trustHandler = std::move(handler);
}

void SimulatedBarWindow::showCounts(int passed, int heldBack) {
    const QString held = Bundle::format(text("Held back: %@"), QString::number(heldBack));
    const QString let = Bundle::format(text("Passed: %@"), QString::number(passed));
    _counts->setText(held + QStringLiteral("    ") + let);
}

void SimulatedBarWindow::showTrust(bool given) {
    const QSignalBlocker quiet(_trust);
    _trust->setChecked(given);
}

void SimulatedBarWindow::ask() {
    _prompt->setText(QStringLiteral("\u2190 ") + text("Barquell asks for it"));
}

} // namespace barquell
