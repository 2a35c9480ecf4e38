#include "preferences/Sheet.h"

#include "foundation/Bundle.h"

#include <QMessageBox>
#include <QPushButton>

namespace barquell {

void confirmInSheet(QWidget *window, const QString &question, QObject *context,
                    std::function<void()> confirmed) {
    // The window's child, which ends with its answer.
    auto *sheet = new QMessageBox(window); // NOLINT(cppcoreguidelines-owning-memory)
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    sheet->setWindowModality(Qt::WindowModal);
    sheet->setWindowTitle(Bundle::localizedName());
    sheet->setIcon(QMessageBox::Warning);
    sheet->setText(question);
    const QPushButton *ok =
        sheet->addButton(Bundle::localizedString(QStringLiteral("OK")), QMessageBox::AcceptRole);
    sheet->addButton(Bundle::localizedString(QStringLiteral("Cancel")), QMessageBox::RejectRole);
    QObject::connect(sheet, &QDialog::finished, context, [sheet, ok, confirmed = std::move(confirmed)] {
        if (sheet->clickedButton() == ok) {
            confirmed();
        }
    });
    sheet->open();
}

} // namespace barquell
