#pragma once

namespace barquell {

/// What was asked to be told about; its destruction ends the telling, also from inside its own handler.
class Observation {
public:
    virtual ~Observation() = default;

protected:
    Observation() = default;
    Observation(const Observation &) = default;
    Observation &operator=(const Observation &) = default;
};

} // namespace barquell
