// The workstation: the desk with every rule of the system bound to its controls.
// It is what the programs and the tests build; the rules themselves are given
// the desk.
#pragma once

#include <filesystem>

#include "screens/desk.h"

namespace obsdesk {

class Workstation : public Desk {
 public:
  Workstation(std::filesystem::path bank_root, Services services);
};

// Binds every rule of the system to its controls; called once by the Workstation.
void wire_all(Desk& ws);

}  // namespace obsdesk
