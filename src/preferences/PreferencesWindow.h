#pragma once

#include "preferences/ContentWindow.h"

class QToolBar;

namespace barquell {

class PreferencesWindowController;

/// The preferences window: its toolbar's items, checkable and exclusive, carry the identifiers of their tabs
/// in a dynamic property `itemIdentifier`. Main thread only.
class PreferencesWindow : public ContentWindow {
    Q_OBJECT
    Q_PROPERTY(QObject *preferencesController READ preferencesControllerObject WRITE setPreferencesController)

public:
    using ContentWindow::ContentWindow;

    Q_INVOKABLE void awakeFromNib();

    /// Highlights the item of that identifier alone; none where there is no such item.
    void setSelectedItemIdentifier(const QString &identifier);
    QString selectedItemIdentifier() const;

    QObject *preferencesControllerObject() const { return _preferencesController; }
    void setPreferencesController(QObject *controller) { _preferencesController = controller; }

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QList<QAction *> items() const;

    QPointer<QObject> _preferencesController;
};

} // namespace barquell
