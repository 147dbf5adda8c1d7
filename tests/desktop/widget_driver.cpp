#include "widget_driver.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QtTest/QTest>
#include <stdexcept>

#include "station/workstation.h"

namespace obsdesk::test {

QWidget* WidgetDriver::widget(Control& c) {
  QWidget* w = binder_.widget(c);
  if (w == nullptr) throw std::runtime_error("no widget for " + c.full_name());
  if (!w->isVisible()) throw std::runtime_error(c.full_name() + " is not on screen");
  return w;
}

void WidgetDriver::type(Control& c, const std::string& text) {
  QWidget* w = widget(c);
  auto* combo = qobject_cast<QComboBox*>(w);
  QLineEdit* edit = combo ? combo->lineEdit() : qobject_cast<QLineEdit*>(w);
  if (edit == nullptr) throw std::runtime_error(c.full_name() + " takes no typing");
  (combo ? static_cast<QWidget*>(combo) : edit)->setFocus(Qt::MouseFocusReason);
  edit->selectAll();
  // A Persian character cannot be typed by keyClicks: each goes as its own key
  // event carrying the character as its text.
  for (const QChar ch : QString::fromStdString(text)) {
    Qt::Key key = Qt::Key_unknown;
    if (ch.isDigit() && ch.unicode() < 128) key = static_cast<Qt::Key>(Qt::Key_0 + (ch.unicode() - '0'));
    else if (ch.isLetter() && ch.unicode() < 128) key = static_cast<Qt::Key>(Qt::Key_A + (ch.toUpper().unicode() - 'A'));
    QTest::sendKeyEvent(QTest::Press, edit, key, QString(ch), Qt::NoModifier);
    QTest::sendKeyEvent(QTest::Release, edit, key, QString(ch), Qt::NoModifier);
  }
}

void WidgetDriver::enter() {
  Control* c = binder_.workstation().focused();
  QWidget* w = c ? binder_.widget(*c) : nullptr;
  if (w == nullptr) w = QApplication::focusWidget();
  if (w == nullptr) return;
  if (auto* combo = qobject_cast<QComboBox*>(w)) w = combo->lineEdit();
  QTest::keyClick(w, Qt::Key_Return);
}

void WidgetDriver::click(Control& c) {
  QWidget* w = widget(c);
  if (auto* b = qobject_cast<QAbstractButton*>(w)) {
    QTest::mouseClick(b, Qt::LeftButton);
  } else if (auto* combo = qobject_cast<QComboBox*>(w)) {
    const QPoint at = combo->rect().center();
    QMouseEvent press(QEvent::MouseButtonPress, at, combo->mapToGlobal(at), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(combo, &press);
    combo->hidePopup();
  } else {
    const QPoint at = w->rect().center();
    QMouseEvent release(QEvent::MouseButtonRelease, at, w->mapToGlobal(at), Qt::LeftButton, Qt::NoButton,
                        Qt::NoModifier);
    QApplication::sendEvent(w, &release);
  }
}

void WidgetDriver::choose(Control& c, const std::string& item) {
  click(c);
  auto* combo = qobject_cast<QComboBox*>(widget(c));
  if (combo == nullptr) throw std::runtime_error(c.full_name() + " is not a list");
  const int i = combo->findText(QString::fromStdString(item), Qt::MatchExactly);
  if (i < 0) throw std::runtime_error("\"" + item + "\" is not shown in " + c.full_name());
  // What the open list does when the observer picks a line.
  combo->setCurrentIndex(i);
  emit combo->activated(i);
}

QString WidgetDriver::shown_text(Control& c) {
  QWidget* w = binder_.widget(c);
  if (auto* combo = qobject_cast<QComboBox*>(w)) return combo->currentText();
  if (auto* e = qobject_cast<QLineEdit*>(w)) return e->text();
  if (auto* l = qobject_cast<QLabel*>(w)) return l->text();
  if (auto* b = qobject_cast<QAbstractButton*>(w)) return b->text();
  return {};
}

void WidgetDriver::open_synmet_06() {
  Desk& ws = binder_.workstation();
  FrmKashf& k = ws.FrmKashf;
  click(ws.FrmMain.Command2);
  click(ws.FrmDisplayKashf.newW);
  choose(k.Combo5, "SYN & MET");
  type(ws.FrmIRIX.TXTIR, "3");
  type(ws.FrmIRIX.TXTIX, "2");
  type(k.Text1, "06");
  enter();
  for (const auto& [box, value] : std::initializer_list<std::pair<Control*, const char*>>{
           {&k.Text2, "270"}, {&k.Text3, "4"}, {&k.Text4, "10000"}, {&k.Text5, "3"}, {&k.Text6, "3"},
           {&k.Combo1, "CU     1"}, {&k.Text7, "900"}, {&k.Text49, "3"}, {&k.Combo4, "CU     1"},
           {&k.txtmin, "900"}, {&k.Text27, "12.4"}, {&k.Text28, "6.2"}, {&k.Text13, "15"}, {&k.Text14, "880.0"},
           {&k.Text25, "1.2"}, {&k.Text38, "3"}, {&k.txtt12, "8.0"}})
    ws.set_text(*box, value);
  binder_.sync();
}

}  // namespace obsdesk::test
