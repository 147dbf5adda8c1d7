// The Designer forms, one .ui file per screen under forms/, each compiled by uic.
// To give a screen its form: add forms/SCREEN.ui (top widget named SCREEN, each
// control's widget named as the control) and one line in designer_forms.cpp.
#pragma once

#include <functional>
#include <map>
#include <string>

class QWidget;

namespace obsdesk {

using FormMaker = std::function<QWidget*()>;
const std::map<std::string, FormMaker>& designer_forms();

}  // namespace obsdesk
