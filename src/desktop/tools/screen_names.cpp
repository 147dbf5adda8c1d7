// Prints the name table of every screen (or of the one named on the command
// line), the input of ui_draft.py. One line a control, tab-separated: name, kind
// number, frame ("-" for none), shown at design (1/0), laid over others as a mask
// (1/0), max length, caption. A screen starts with "# NAME caption=CAPTION".
#include <filesystem>
#include <iostream>
#include <set>
#include <string>

#include "station/workstation.h"

int main(int argc, char** argv) {
  using namespace obsdesk;
  QueueAsker asker;
  FixedClock clock;
  MemoryClipboard clipboard;
  // The screens are built without a start: the bank root is never touched.
  Workstation ws(std::filesystem::temp_directory_path() / "obsdesk-screen-names",
                 Services{asker, clock, clipboard});
  for (const Screen* s : ws.screens()) {
    if (argc > 1 && s->name != argv[1]) continue;
    std::cout << "# " << s->name << " caption=" << s->caption << "\n";
    std::set<const Control*> masks;
    for (const Control* c : s->controls())
      for (const Control* m : c->masks) masks.insert(m);
    for (const Control* c : s->controls()) {
      std::cout << c->name << "\t" << static_cast<int>(c->kind) << "\t"
                << (c->container ? c->container->name : std::string("-")) << "\t" << c->visible << "\t"
                << masks.count(c) << "\t" << c->max_length << "\t" << c->text << "\n";
    }
  }
  return 0;
}
