#include "station/workstation.h"

namespace obsdesk {

Workstation::Workstation(std::filesystem::path bank_root, Services services)
    : Desk(std::move(bank_root), services) {
  wire_all(*this);
  // What the screens are once every rule has filled its lists and captions is
  // what unloading a screen puts back.
  snapshot_designs();
}

}  // namespace obsdesk
