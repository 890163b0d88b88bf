#pragma once

#include <string>
#include <string_view>

namespace gustline {

struct Application;

// A setting read as a 16-bit integer, rounded half to even as the settings were always
// read; a text that does not read raises FacilityError.
int SettingInt(std::string_view key, std::string_view text);
// "True"/"False" in any case, or a number (non-zero is true); anything else raises.
bool SettingBool(std::string_view key, std::string_view text);
// How a boolean is stored: "True" or "False".
std::string BoolSettingText(bool value);

// Zoom, the two bars and the recent list from the settings onto the window. An unreadable
// value raises FacilityError and the settings after it are not applied.
void ApplyStartupSettings(Application& app);

// At exit, in this order: Zoom, Toolbar, Statusbar, Template, File0 to File3.
void SaveStartupSettings(Application& app);

}  // namespace gustline
