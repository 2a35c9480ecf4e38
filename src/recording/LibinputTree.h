#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace barquell::recording {

/// What the mappings and sequences of a recording are.
enum class Node {
    Text,
    Top,
    Devices,
    Device,
    Description,
    Identity,
    CodesByType,
    Codes,
    Axes,
    Axis,
    Properties,
    EventItems,
    EventItem,
    Events,
    Event,
    Unknown,
};

/// What a mapping or a sequence is by what it stands in, and there under which key (none in a sequence).
Node childOf(Node parent, std::string_view key, bool isMapping);

/// How many numbers a list has; none where any number of them will do, or where the node is no such list.
std::optional<std::size_t> listSize(Node node);

bool isNumberList(Node node);

} // namespace barquell::recording
