#pragma once

#include "app/AppController.h"
#include "foundation/interface/InterfaceFile.h"

#include <QMenu>

namespace barquell {

/// Owns the interface file "MainMenu" and what it makes: the application's delegate and the main menu. The
/// menu is in no bar; its keys work in every window that comes to the foreground. macOS: NSApp, the owner of
/// the main nib. Main thread only.
class Application final : public QObject {
    Q_OBJECT
    Q_PROPERTY(barquell::AppController *delegate READ delegate WRITE setDelegate)
    Q_PROPERTY(QMenu *mainMenu READ mainMenu WRITE setMainMenu)

public:
    Application() = default;
    ~Application() override;
    Q_DISABLE_COPY_MOVE(Application)

    /// From the interface file where there are windows. Without, or where the file is broken, the delegate
    /// alone: blocking needs no menu.
    void load();

    AppController *delegate() const { return _delegate; }
    void setDelegate(AppController *delegate);
    QMenu *mainMenu() const { return _mainMenu; }
    void setMainMenu(QMenu *menu) { _mainMenu = menu; }

    Q_INVOKABLE void terminate(const QVariant &sender);

private:
    void giveMenuTo(QWidget &window) const;

    TopLevelObjects _objects;
    QPointer<AppController> _delegate;
    QPointer<QMenu> _mainMenu;
};

} // namespace barquell
