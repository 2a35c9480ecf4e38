#include "recording/LibinputTree.h"

#include <algorithm>
#include <array>

namespace barquell::recording {

namespace {

struct Branch {
    Node parent;
    std::string_view key; ///< empty: whatever the key, or none
    bool isMapping;
    Node child;
};

/// Whatever is not here belongs to no part of a recording that matters and is skipped with all that is in it.
constexpr std::array<Branch, 14> kTree{{
    {Node::Text, "", true, Node::Top},
    {Node::Top, "devices", false, Node::Devices},
    {Node::Devices, "", true, Node::Device},
    {Node::Device, "evdev", true, Node::Description},
    {Node::Description, "id", false, Node::Identity},
    {Node::Description, "codes", true, Node::CodesByType},
    {Node::CodesByType, "", false, Node::Codes},
    {Node::Description, "absinfo", true, Node::Axes},
    {Node::Axes, "", false, Node::Axis},
    {Node::Description, "properties", false, Node::Properties},
    {Node::Device, "events", false, Node::EventItems},
    {Node::EventItems, "", true, Node::EventItem},
    {Node::EventItem, "evdev", false, Node::Events},
    {Node::Events, "", false, Node::Event},
}};

} // namespace

Node childOf(Node parent, std::string_view key, bool isMapping) {
    const auto *const branch = std::find_if(kTree.begin(), kTree.end(), [&](const Branch &b) {
        return b.parent == parent && b.isMapping == isMapping && (b.key.empty() || b.key == key);
    });
    return branch != kTree.end() ? branch->child : Node::Unknown;
}

std::optional<std::size_t> listSize(Node node) {
    switch (node) {
    case Node::Identity:
        return 4;
    case Node::Axis:
    case Node::Event:
        return 5;
    default:
        return std::nullopt;
    }
}

bool isNumberList(Node node) {
    return listSize(node) || node == Node::Codes || node == Node::Properties;
}

} // namespace barquell::recording
