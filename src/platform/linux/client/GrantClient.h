#pragma once

#include "platform/linux/client/GrantOutcome.h"

#include <functional>
#include <memory>

namespace barquell {

/// This user's wishes about the grant, told to the tap server on a connection of their own without waiting
/// for it. One at a time. Main thread only.
class GrantClient {
public:
    /// Called from the run loop; it may ask for the next one.
    using Handler = std::function<void(GrantOutcome)>;

    explicit GrantClient(QString socketPath);
    ~GrantClient();
    Q_DISABLE_COPY_MOVE(GrantClient)

    /// Has the system ask the person whether this user may filter, which may take minutes. While that is
    /// under way a second request only takes its handler's place, and during a withdrawal it is nothing. The
    /// outcome is logged in one line; it is Silent where there is no answer kServerLimit after the person's
    /// time was over.
    void request(Handler onOutcome = {});

    /// Gives the grant up, and takes a request back that is under way. The outcome is logged in one line; it
    /// is Silent where there is no answer within kServerLimit.
    void withdraw(Handler onOutcome = {});

private:
    struct Wish;

    void begin(protocol::ClientMessageType type, Handler onOutcome);
    void end(GrantOutcome outcome);

    const QString _socketPath;
    std::shared_ptr<Wish> _wish; // that is under way
};

} // namespace barquell
