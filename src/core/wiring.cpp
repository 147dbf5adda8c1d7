#include "archive/browser.h"
#include "core/program.h"
#include "core/report_kind.h"
#include "core/workstation.h"

namespace obsdesk {

// Each topic declares its wire function here and binds its own rules in it.

// stations

// session

// barometer and psychrometry

// rain and tendency

// coders

// pickers

// archive
void wire_save(Workstation& ws);

// Every topic binds its own rules; this is the one list of them.
void wire_all(Workstation& ws) {
  wire_program(ws);
  wire_report_kind(ws);
  wire_browser(ws);

  // stations

  // session

  // barometer and psychrometry

  // rain and tendency

  // coders

  // pickers

  // archive
  wire_save(ws);

}

}  // namespace obsdesk
