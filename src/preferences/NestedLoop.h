#pragma once

#include <QList>
#include <QObject>
#include <QPointer>

#include <utility>

namespace barquell {

/// Lives on the stack of who runs an event loop from inside an event of a window. What is released meanwhile
/// is deleted after that event, which would else return into what has gone. Main thread only.
class NestedLoop {
public:
    NestedLoop() { ++depth(); }
    ~NestedLoop() {
        if (--depth() == 0) {
            for (const QPointer<QObject> &each : std::exchange(held(), {})) {
                release(each);
            }
        }
    }
    Q_DISABLE_COPY_MOVE(NestedLoop)

    /// deleteLater(), once no such loop runs.
    static void release(QObject *object) {
        if (depth() > 0) {
            held().append(object);
        } else if (object) {
            object->deleteLater();
        }
    }

private:
    static int &depth() {
        static int running = 0;
        return running;
    }
    static QList<QPointer<QObject>> &held() {
        static QList<QPointer<QObject>> objects;
        return objects;
    }
};

} // namespace barquell
