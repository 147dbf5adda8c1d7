#include "desktop/forms.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <functional>
#include <map>

#include "core/control.h"
#include "desktop/designer_forms.h"

namespace obsdesk {

namespace {

QWidget* plain_widget(const Control& c, QWidget* parent) {
  QWidget* w = nullptr;
  switch (c.kind) {
    case Kind::TextBox: w = new QLineEdit(parent); break;
    case Kind::ComboBox: w = new QComboBox(parent); break;
    case Kind::Label: w = new QLabel(parent); break;
    case Kind::Frame: w = new QGroupBox(parent); break;
    case Kind::Button: w = new QPushButton(parent); break;
    case Kind::Image: {
      // The binder draws the symbol of its picture id in it.
      auto* l = new QLabel(parent);
      l->setFrameShape(QFrame::Box);
      l->setAlignment(Qt::AlignCenter);
      l->setMinimumSize(44, 40);
      w = l;
      break;
    }
    case Kind::OptionButton: w = new QRadioButton(parent); break;
  }
  w->setObjectName(QString::fromStdString(c.name));
  return w;
}

// Lays the controls that sit in one container (nullptr: the screen) on a grid of
// four columns, in the order the screen declares them; a frame takes a whole row
// and holds its own controls.
void lay_out(const Screen& s, const Control* container, QWidget* parent, QGridLayout* grid) {
  int row = 0, col = 0;
  for (const Control* c : s.controls()) {
    if (c->container != container) continue;
    QWidget* w = plain_widget(*c, parent);
    if (c->kind == Kind::Frame) {
      if (col != 0) ++row;
      auto* inner = new QGridLayout(w);
      inner->setObjectName(QStringLiteral("ui_grid_") + w->objectName());
      lay_out(s, c, w, inner);
      grid->addWidget(w, row++, 0, 1, 4);
      col = 0;
      continue;
    }
    grid->addWidget(w, row, col);
    if (++col == 4) col = 0, ++row;
  }
}

}  // namespace

QWidget* make_form(const Screen& screen) {
  const auto& designer = designer_forms();
  auto it = designer.find(screen.name);
  if (it != designer.end()) return it->second();
  auto* form = new QWidget;
  form->setObjectName(QString::fromStdString(screen.name));
  auto* grid = new QGridLayout(form);
  grid->setObjectName(QStringLiteral("ui_grid"));
  lay_out(screen, nullptr, form, grid);
  return form;
}

std::vector<std::string> designer_form_names() {
  std::vector<std::string> names;
  for (const auto& [name, make] : designer_forms()) names.push_back(name);
  return names;
}

}  // namespace obsdesk
