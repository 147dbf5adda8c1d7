// The help screen's text: how a duty observer goes through the program, in the
// order of a working day.
#pragma once

namespace obsdesk {

extern const char* const kHelpText;

}  // namespace obsdesk
