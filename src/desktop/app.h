// The desktop program put together: the application's language, direction and
// font, a Workstation with the desktop's services, and the binder over it.
#pragma once

#include <QObject>
#include <filesystem>
#include <memory>

#include "core/services.h"
#include "desktop/binder.h"
#include "desktop/services.h"

class QApplication;

namespace obsdesk {

class Desk;
class Workstation;

// Right to left, the Persian font, and Persian words on Qt's own buttons (Yes,
// No, Cancel) from the Qt translations installed with the system.
void prepare_application(QApplication& app);

class Desktop {
 public:
  Desktop(std::filesystem::path bank_root, Clock& clock);
  ~Desktop();

  // Starts the program on the bank and shows the start screen. False when it
  // could not start (the bank cannot be made, or another copy runs on it).
  [[nodiscard]] bool start(std::string* why = nullptr);

  Workstation& workstation() { return *ws_; }
  Binder& binder() { return *binder_; }

 private:
  QtAsker asker_;
  QtClipboard clipboard_;
  std::unique_ptr<Workstation> ws_;
  std::unique_ptr<Binder> binder_;
};

// The file chooser of the bank paths on the start screen: a Qt file dialog that
// fills the name its rule reads, before the click reaches the core.
void install_bank_chooser(Binder& binder);

// The colour chooser of the start screen: a Qt colour dialog that leaves the
// chosen colour number where the colour rule reads it, before the click.
void install_colour_chooser(Binder& binder);

// The station model beside the code panel: the coded SYNOP (txtSYN) drawn as the
// centre will plot it, redrawn whenever the text changes and empty while there
// is none. A display only; it reads the core and sets nothing in it.
void install_station_model(Binder& binder);

// The hint window of the boards: under the code, its short meaning and the
// symbol of the button the pointer is on, drawn large enough to read its strokes.
void install_hint_symbol(Binder& binder);

}  // namespace obsdesk
