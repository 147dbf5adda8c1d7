// The forms of the screens: a Designer form where one is registered, a plain
// form made from the screen's name table otherwise.
#pragma once

#include <string>
#include <vector>

class QWidget;

namespace obsdesk {

struct Screen;

// A new form for the screen, not yet shown; the caller owns it.
QWidget* make_form(const Screen& screen);

// The screens that have a Designer form of their own.
std::vector<std::string> designer_form_names();

}  // namespace obsdesk
