#include <QWidget>
#include <gtest/gtest.h>
#include <memory>

#include "desktop/binder.h"
#include "desktop/designer_forms.h"
#include "desktop/forms.h"
#include "support/test_support.h"

namespace obsdesk {
namespace {

std::string joined(const std::vector<std::string>& v) {
  std::string s;
  for (const std::string& x : v) s += x + " ";
  return s;
}

// Every screen's form, Designer-made or plain: each control has exactly one
// widget, and each named widget is a control of that screen. A widget renamed in
// Designer, or a control added to a screen and forgotten on its form, fails here.
TEST(Forms, EachControlHasOneWidgetAndEachNamedWidgetAControl) {
  test::Station st;
  for (Screen* s : st.ws->screens()) {
    std::unique_ptr<QWidget> form(make_form(*s));
    EXPECT_EQ(form->objectName().toStdString(), s->name);
    const Binder::Parity p = Binder::parity(*s, *form);
    EXPECT_TRUE(p.widgets_without_control.empty()) << s->name << ": " << joined(p.widgets_without_control);
    EXPECT_TRUE(p.controls_without_widget.empty()) << s->name << ": " << joined(p.controls_without_widget);
    EXPECT_TRUE(p.controls_with_many_widgets.empty()) << s->name << ": " << joined(p.controls_with_many_widgets);
  }
}

// A Designer form registered under a name no screen has would never be shown.
TEST(Forms, EachDesignerFormBelongsToAScreen) {
  test::Station st;
  for (const std::string& name : designer_form_names()) EXPECT_NE(st.ws->screen(name), nullptr) << name;
}

}  // namespace
}  // namespace obsdesk
