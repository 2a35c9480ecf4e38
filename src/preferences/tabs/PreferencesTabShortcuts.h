#pragma once

#include "preferences/PreferencesTab.h"

namespace barquell {

/// The three shortcuts; everything is in its interface file.
class PreferencesTabShortcuts final : public PreferencesTab {
    Q_OBJECT

public:
    using PreferencesTab::PreferencesTab;
};

} // namespace barquell
