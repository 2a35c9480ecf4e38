#include "menubar/PermissionPage.h"

#include "foundation/Bundle.h"
#include "preferences/ContainerView.h"
#include "preferences/FittingSize.h"
#include "preferences/SharedController.h"
#include "preferences/WindowFrame.h"
#include "process/AppHelpers.h"
#include "process/Helpers.h"

#include <QLocale>

namespace barquell {

namespace {

using Shared = SharedController<PermissionPage>;

QString sinceText(const QDateTime &since) {
    return since.isValid()
               ? Bundle::format(Bundle::localizedString(QStringLiteral("An administrator allowed it on %@.")),
                                QLocale().toString(since.date(), QLocale::LongFormat))
               : QString();
}

/// Why nothing changed; `given` where it was to be withdrawn.
QString complaint(bool given, Permission::Outcome outcome) {
    if (outcome == Permission::Outcome::Failed) {
        return Bundle::localizedString(
            QStringLiteral("The service that holds the Touch Bar could not do this; its log says why."));
    }
    if (given) {
        return Bundle::localizedString(QStringLiteral(
            "The permission could not be withdrawn: the service that holds the Touch Bar does not answer."));
    }
    if (outcome == Permission::Outcome::Silent) {
        return Bundle::localizedString(QStringLiteral(
            "The permission was not given: the service that holds the Touch Bar does not answer."));
    }
    return Bundle::localizedString(QStringLiteral(
        "The permission was not given: somebody declined, or there is nobody who can be asked."));
}

} // namespace

void PermissionPage::show(const Permission &permission) {
    if (!Shared::get()) {
        Shared::set(std::make_unique<PermissionPage>(permission));
    }
    TrustedProcessChecker::addObserver(Shared::get(), true);
    AppHelpers::showForegroundWindow(openWindow());
}

ContentWindow *PermissionPage::openWindow() {
    return Shared::get() ? Shared::get()->window() : nullptr;
}

PermissionPage::PermissionPage(Permission permission) : _permission(std::move(permission)) {
    const bool loaded = Helpers::loadNibNamed(QStringLiteral("PermissionPage"), this, &_topLevelObjects);
    if (loaded && _window && _window->contentView()) {
        _window->contentView()->setContentLayoutMode(ContainerLayoutTop);
        note({});
    }
}

PermissionPage::~PermissionPage() {
    TrustedProcessChecker::removeObserver(this);
}

void PermissionPage::processTrustedStateDidChange(bool /*trusted*/) {
    note({});
}

void PermissionPage::windowWillClose() {
    TrustedProcessChecker::removeObserver(this);
    Shared::letGo(this);
}

void PermissionPage::change(const QVariant & /*sender*/) {
    const bool given = _permission.state().given;
    note({});
    const auto answer = [page = QPointer(this), given](Permission::Outcome outcome) {
        if (page && outcome != Permission::Outcome::Done) {
            page->note(complaint(given, outcome));
        }
    };
    (given ? _permission.withdraw : _permission.request)(answer);
}

void PermissionPage::note(const QString &text) {
    if (_noteLabel) {
        _noteLabel->setText(text);
        _noteLabel->setVisible(!text.isEmpty());
        update();
    }
}

void PermissionPage::update() {
    const Permission::State state = _permission.state();
    _titleLabel->setText(
        Bundle::format(Bundle::localizedString(state.given ? QStringLiteral("%@ may hold touches back")
                                                           : QStringLiteral("%@ may not hold touches back")),
                       _permission.userName));
    _sinceLabel->setText(state.given ? sinceText(state.since) : QString());
    _sinceLabel->setVisible(!_sinceLabel->text().isEmpty());
    _button->setText(
        Bundle::localizedString(state.given ? QStringLiteral("Withdraw") : QStringLiteral("Allow…")));
    growToContents(*_page);
    _window->contentView()->setContentView(_page);
    const QSizeF size = _window->frameRectForContentRect(QRectF(QPointF(), QSizeF(_page->size()))).size();
    if (size != _window->frame().size()) {
        _window->setFrame(resizedAtTop(_window->frame(), size), _window->isVisible());
    }
}

} // namespace barquell
