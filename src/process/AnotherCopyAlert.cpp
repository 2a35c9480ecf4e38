#include "process/AnotherCopyAlert.h"

#include "foundation/Bundle.h"
#include "foundation/Log.h"
#include "process/Windows.h"

#include <QMessageBox>
#include <QPushButton>

#include <array>
#include <utility>

namespace barquell {

namespace {

struct Answer {
    const char *title;
    CopyChoice choice;
};

constexpr const char *kMessage = QT_TRANSLATE_NOOP("Bundle", "Another copy of %@ is already running");
constexpr const char *kConsequence = QT_TRANSLATE_NOOP("Bundle", "This copy is going to quit");
constexpr std::array kAnswers{
    Answer{QT_TRANSLATE_NOOP("Bundle", "OK"), CopyChoice::QuitThis},
    Answer{QT_TRANSLATE_NOOP("Bundle", "Show another copy"), CopyChoice::ShowAnother},
    Answer{QT_TRANSLATE_NOOP("Bundle", "Quit another copy instead"), CopyChoice::QuitAnother},
    Answer{QT_TRANSLATE_NOOP("Bundle", "Keep all copies running"), CopyChoice::KeepAll},
};

QString localized(const char *text) {
    return Bundle::localizedString(QString::fromLatin1(text));
}

} // namespace

CopyChoice askAboutAnotherCopy() {
    if (!hasWindows()) {
        log(Bundle::format(QString::fromLatin1(kMessage), Bundle::localizedName()) + QStringLiteral(". ") +
            QString::fromLatin1(kConsequence));
        return CopyChoice::QuitThis;
    }
    const QString message = Bundle::format(localized(kMessage), Bundle::localizedName());
    QMessageBox alert(QMessageBox::Warning, Bundle::localizedName(), message);
    alert.setInformativeText(localized(kConsequence));
    std::array<const QAbstractButton *, kAnswers.size()> buttons{};
    for (std::size_t i = 0; i < kAnswers.size(); ++i) {
        // One role for all: styles put the roles in an order of their own.
        buttons.at(i) = alert.addButton(localized(kAnswers.at(i).title), QMessageBox::ActionRole);
    }
    alert.setDefaultButton(qobject_cast<QPushButton *>(alert.buttons().constFirst()));
    alert.setEscapeButton(alert.buttons().constFirst());
    alert.exec();
    for (std::size_t i = 0; i < kAnswers.size(); ++i) {
        if (alert.clickedButton() == buttons.at(i)) {
            return kAnswers.at(i).choice;
        }
    }
    return CopyChoice::QuitThis;
}

} // namespace barquell
