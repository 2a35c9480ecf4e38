#include "platform/macos/CenterObservation.h"

namespace barquell {

CenterObservation::CenterObservation(NSNotificationCenter *center, NSNotificationName name, id object,
                                     std::function<void(NSNotification *)> handler)
    : _center(center), _token([center addObserverForName:name
                                                  object:object
                                                   queue:[NSOperationQueue mainQueue]
                                              usingBlock:^(NSNotification *notification) {
                                                handler(notification);
                                              }]) {}

CenterObservation::~CenterObservation() {
    [_center removeObserver:_token];
}

} // namespace barquell
