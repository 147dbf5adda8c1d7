#include "archive/browser.h"
#include "core/program.h"
#include "core/report_kind.h"
#include "core/workstation.h"

namespace obsdesk {

// Every topic binds its own rules; this is the one list of them.
void wire_all(Workstation& ws) {
  wire_program(ws);
  wire_report_kind(ws);
  wire_browser(ws);
}

}  // namespace obsdesk
