#include <QWidget>
#include <algorithm>
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

// Every screen has a Designer form of its own, and a form registered under a
// name no screen has would never be shown.
TEST(Forms, EachScreenHasItsDesignerFormAndEachFormAScreen) {
  test::Station st;
  const std::vector<std::string> names = designer_form_names();
  for (const std::string& name : names) EXPECT_NE(st.ws->screen(name), nullptr) << name;
  for (Screen* s : st.ws->screens())
    EXPECT_NE(std::find(names.begin(), names.end(), s->name), names.end()) << s->name << " has no Designer form";
  EXPECT_EQ(st.ws->screens().size(), 25u);
}

}  // namespace
}  // namespace obsdesk
