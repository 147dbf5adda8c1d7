// Prints the name table of every screen (or of the one named), for drafting forms.
#include "core/workstation.h"
#include <iostream>
using namespace obsdesk;
// One line a control: name, kind number, frame ("-" for none), shown, mask, max length, caption.
int main(int argc,char**argv){
  QueueAsker a; FixedClock c; MemoryClipboard cb;
  Workstation ws("/tmp/dumpbank", Services{a,c,cb});
  for (Screen* s: ws.screens()){
    if (argc>1 && s->name!=argv[1]) continue;
    std::cout<<"# "<<s->name<<" caption="<<s->caption<<"\n";
    for (Control* k: s->controls()){
      bool mask=false;
      for (Control* o: s->controls()) for (Control* m: o->masks) if (m==k) mask=true;
      std::cout<<k->name<<"\t"<<int(k->kind)<<"\t"<<(k->container?k->container->name:"-")<<"\t"<<k->visible<<"\t"<<mask<<"\t"<<k->max_length<<"\t"<<k->text<<"\n";
    }
  }
}
