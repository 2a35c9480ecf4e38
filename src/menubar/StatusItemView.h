#pragma once

#include "platform/StatusBar.h"

#include <QObject>
#include <QPointer>

namespace barquell {

class StatusItemView;

/// Is asked about the clicks on a status item, after the Control key has changed the button; true where it
/// has dealt with the click.
class StatusItemViewDelegate {
public:
    virtual ~StatusItemViewDelegate() = default;

    virtual bool statusItemViewMouseDown(StatusItemView &view, const StatusItemClick &click) = 0;
    virtual bool statusItemViewRightMouseDown(StatusItemView &view, const StatusItemClick &click) = 0;

protected:
    StatusItemViewDelegate() = default;
    StatusItemViewDelegate(const StatusItemViewDelegate &) = default;
    StatusItemViewDelegate &operator=(const StatusItemViewDelegate &) = default;
};

/// Lies, in thought, over the whole status item and routes its clicks. The Control key swaps the buttons,
/// both of them. Main thread only.
class StatusItemView {
public:
    /// An object that is also a StatusItemViewDelegate; held weakly.
    QObject *eventDelegate() const { return _eventDelegate; }
    void setEventDelegate(QObject *eventDelegate) { _eventDelegate = eventDelegate; }

    /// True where the click ends here; else the item acts on it, and trust has just been asked for, so that
    /// the menu that opens is current.
    bool mouseDown(const StatusItemClick &click);
    bool rightMouseDown(const StatusItemClick &click);

private:
    bool route(const StatusItemClick &click, bool right);

    QPointer<QObject> _eventDelegate;
};

} // namespace barquell
