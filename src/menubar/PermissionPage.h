#pragma once

#include "blocking/TrustedProcessChecker.h"
#include "foundation/interface/InterfaceFile.h"
#include "preferences/ContentWindow.h"
#include "preferences/WindowDelegate.h"

#include <QDateTime>
#include <QLabel>
#include <QPointer>
#include <QPushButton>

#include <functional>

namespace barquell {

/// The permission to filter as a place keeps it for itself. What asks for a change is answered from the run
/// loop.
struct Permission {
    struct State {
        bool given = false;
        QDateTime since; ///< invalid where it is not known
    };
    enum class Outcome {
        Done,
        Denied, ///< somebody declined, or nobody could be asked
        Silent, ///< who keeps the permission cannot be reached or does not answer
        Failed, ///< it answered that it cannot
    };
    using Answer = std::function<void(Outcome)>;

    QString userName;
    std::function<State()> state;
    std::function<void(Answer)> request;
    std::function<void(Answer)> withdraw;
};

/// A small window that says whether this user may filter touches, since when, and gives the permission or
/// takes it back. It stands where other systems have a page of their own for this, and follows every change
/// of trust. There is one while it is open. Main thread only.
class PermissionPage final : public QObject, public TrustedProcessObserver, public WindowDelegate {
    Q_OBJECT
    Q_PROPERTY(barquell::ContentWindow *window READ window WRITE setWindow)
    Q_PROPERTY(QWidget *page MEMBER _page)
    Q_PROPERTY(QLabel *titleLabel MEMBER _titleLabel)
    Q_PROPERTY(QLabel *sinceLabel MEMBER _sinceLabel)
    Q_PROPERTY(QLabel *noteLabel MEMBER _noteLabel)
    Q_PROPERTY(QPushButton *button MEMBER _button)

public:
    /// Opens it, or brings it to the front.
    static void show(const Permission &permission);

    /// Of the one that is open; nullptr where there is none.
    static ContentWindow *openWindow();

    explicit PermissionPage(Permission permission);
    ~PermissionPage() override;
    Q_DISABLE_COPY_MOVE(PermissionPage)

    void processTrustedStateDidChange(bool trusted) override;
    void windowWillClose() override;

    /// Withdraws the permission that is there, or asks for it.
    Q_INVOKABLE void change(const QVariant &sender);

    ContentWindow *window() const { return _window; }
    void setWindow(ContentWindow *window) { _window = window; }

private:
    void update();
    void note(const QString &text);

    const Permission _permission;
    TopLevelObjects _topLevelObjects;
    QPointer<ContentWindow> _window;
    QWidget *_page = nullptr; // these go with the objects
    QLabel *_titleLabel = nullptr;
    QLabel *_sinceLabel = nullptr;
    QLabel *_noteLabel = nullptr;
    QPushButton *_button = nullptr;
};

} // namespace barquell
