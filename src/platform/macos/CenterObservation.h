#pragma once

#include "platform/Observation.h"

#import <Foundation/Foundation.h>

#include <functional>

namespace barquell {

/// A block registered with one of the system's notification centers; taken out when this is destroyed.
class CenterObservation final : public Observation {
public:
    /// The handler runs on the main queue.
    CenterObservation(NSNotificationCenter *center, NSNotificationName name, id object,
                      std::function<void(NSNotification *)> handler);
    ~CenterObservation() override;
    CenterObservation(const CenterObservation &) = delete;
    CenterObservation &operator=(const CenterObservation &) = delete;

private:
    NSNotificationCenter *_center;
    id _token;
};

} // namespace barquell
