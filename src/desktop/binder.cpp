#include "desktop/binder.h"
#include "desktop/svg_pixmap.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QCursor>
#include <QFocusEvent>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QTimer>
#include <QVBoxLayout>
#include <set>

#include "station/workstation.h"
#include "desktop/forms.h"
#include "symbols/symbols.h"

namespace obsdesk {

namespace {

QString q(const std::string& s) { return QString::fromStdString(s); }

// Colour numbers are 0x00BBGGRR; the high bit marks a colour of the system's
// scheme, which the desktop leaves to its style.
bool is_system_colour(long c) { return (static_cast<unsigned long>(c) & 0x80000000UL) != 0; }
QColor colour(long c) {
  return QColor(static_cast<int>(c & 0xFF), static_cast<int>((c >> 8) & 0xFF), static_cast<int>((c >> 16) & 0xFF));
}

bool is_box(const Control& c) { return c.kind == Kind::TextBox || c.kind == Kind::ComboBox; }

// A picture box shows the symbol its picture id names, as large as the box
// allows; an id with no symbol is shown as its text. The id stays in the tip.
void show_picture(QLabel* l, const std::string& id) {
  l->setToolTip(q(id));
  const std::string svg = symbol_svg(id);
  if (svg.empty()) {
    l->setText(q(id));
    return;
  }
  const int side = std::max(16, std::min(l->minimumWidth(), l->minimumHeight()) - 4);
  const QPixmap pix = svg_pixmap(svg, side, l->devicePixelRatioF());
  l->setPixmap(pix);
}

// The screen's caption where the core gives one, else the form's own title.
QString title_of(const Screen& s, const QWidget* form) {
  if (!s.caption.empty()) return q(s.caption);
  if (!form->windowTitle().isEmpty()) return form->windowTitle();
  return q(s.name);
}

// A board's button shows the symbol its picture id names above the code figure
// ("63" under the symbol of ww63); a caption that names no symbol ("Ok",
// "Cancel") stays as it is.
void show_on_button(QAbstractButton* b, const std::string& id) {
  static std::map<std::string, QIcon> drawn;
  auto it = drawn.find(id);
  if (it == drawn.end()) {
    QIcon icon;
    const std::string svg = symbol_svg(id);
    if (!svg.empty()) {
      const QPixmap pix = svg_pixmap(svg, 48);
      icon = QIcon(pix);
    }
    it = drawn.emplace(id, icon).first;
  }
  b->setIcon(it->second);
  b->setText(q(it->second.isNull() ? id : symbol_code(id)));
  b->setToolTip(it->second.isNull() ? QString() : q(id));
}

}  // namespace

// Whether a text holds a letter written right to left (Arabic script, in UTF-8
// lead bytes 0xD8 to 0xDB, or the presentation forms from U+FB50).
static bool has_right_to_left_letter(const std::string& text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto b = static_cast<unsigned char>(text[i]);
    if (b >= 0xD8 && b <= 0xDB) return true;
    if (b == 0xEF && i + 1 < text.size() && static_cast<unsigned char>(text[i + 1]) >= 0xAD) return true;
  }
  return false;
}

struct Binder::Bound {
  Control* c = nullptr;
  QWidget* w = nullptr;
  QLineEdit* edit = nullptr;        // a text box, or the line of an editable list
  QPlainTextEdit* page = nullptr;   // a text box of several lines
  QComboBox* combo = nullptr;
  QLabel* label = nullptr;
  QAbstractButton* button = nullptr;
  QGroupBox* group = nullptr;
  std::vector<QWidget*> captions;   // ui_cap_ labels whose buddy this is
  bool is_mask = false;
  bool follows_text = false;        // a right-to-left box that turns to its text's direction
  bool skip_release = false;        // the release that ends a double click
  // What was last put on the widget.
  std::string text;
  std::vector<std::string> items;
  int shown = -1, enabled = -1, locked = -1, value = -1;
  long back = -1, fore = -1;
};

struct Binder::Window {
  Screen* screen = nullptr;
  QPointer<QWidget> window;
  QWidget* form = nullptr;
  std::vector<Bound*> bound;
  bool modal = false;
  bool sized = false;
};

Binder::Binder(Desk& ws, QObject* parent) : QObject(parent), ws_(ws) {}

Binder::~Binder() {
  for (auto& win : windows_)
    if (win->window) delete win->window;
}

void Binder::bind_all() {
  for (Screen* s : ws_.screens()) {
    QWidget* f = make_form(*s);
    bind(*s, f);
  }
}

void Binder::bind(Screen& screen, QWidget* form) {
  auto win = std::make_unique<Window>();
  win->screen = &screen;
  win->form = form;
  Qt::WindowFlags flags = Qt::Window;
  if (&screen == &ws_.FrmERR) flags = Qt::Tool | Qt::WindowStaysOnTopHint;
  if (&screen == &ws_.FrmTooltip) flags = Qt::ToolTip;
  auto* w = new QWidget(nullptr, flags);
  w->setObjectName(QStringLiteral("ui_window_") + q(screen.name));
  w->setWindowTitle(title_of(screen, form));
  if (&screen == &ws_.FrmERR || &screen == &ws_.FrmTooltip) w->setAttribute(Qt::WA_ShowWithoutActivating);
  auto* layout = new QVBoxLayout(w);
  layout->setContentsMargins(0, 0, 0, 0);
  auto* scroll = new QScrollArea(w);
  scroll->setObjectName(QStringLiteral("ui_scroll"));
  scroll->setWidgetResizable(true);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setWidget(form);
  layout->addWidget(scroll);
  w->installEventFilter(this);
  win->window = w;

  std::set<const Control*> masks;
  for (const Control* c : screen.controls())
    for (const Control* m : c->masks) masks.insert(m);

  const auto children = form->findChildren<QWidget*>();
  for (QWidget* child : children) {
    const QString name = child->objectName();
    if (name.isEmpty() || name.startsWith(QStringLiteral("ui_")) || name.startsWith(QStringLiteral("qt_"))) continue;
    Control* c = screen.find(name.toStdString());
    if (c == nullptr || c->name != name.toStdString() || bound_.count(c)) continue;
    tie(*c, child);
    Bound* b = bound_.at(c).get();
    b->is_mask = masks.count(c) != 0;
    win->bound.push_back(b);
  }
  // Caption labels follow the widget they name.
  for (QLabel* l : form->findChildren<QLabel*>()) {
    if (!l->objectName().startsWith(QStringLiteral("ui_cap_")) || l->buddy() == nullptr) continue;
    if (Control* c = control_of(l->buddy())) bound_.at(c)->captions.push_back(l);
  }
  windows_.push_back(std::move(win));
}

void Binder::tie(Control& c, QWidget* w) {
  auto b = std::make_unique<Bound>();
  b->c = &c;
  b->w = w;
  Bound* raw = b.get();
  by_widget_[w] = raw;
  w->installEventFilter(this);
  if (auto* e = qobject_cast<QLineEdit*>(w)) {
    b->edit = e;
    b->follows_text = e->layoutDirection() == Qt::RightToLeft;
    connect(e, &QLineEdit::textEdited, this, [this, raw](const QString& t) {
      const std::string key = std::exchange(last_key_, std::string());
      send([&] { ws_.key_edit(*raw->c, t.toStdString(), key); });
    });
  } else if (auto* p = qobject_cast<QPlainTextEdit*>(w)) {
    b->page = p;
    p->setReadOnly(true);
  } else if (auto* cb = qobject_cast<QComboBox*>(w)) {
    b->combo = cb;
    cb->setEditable(true);
    cb->setInsertPolicy(QComboBox::NoInsert);
    cb->setCompleter(nullptr);
    b->edit = cb->lineEdit();
    by_widget_[b->edit] = raw;
    b->edit->installEventFilter(this);
    connect(b->edit, &QLineEdit::textEdited, this, [this, raw](const QString& t) {
      const std::string key = std::exchange(last_key_, std::string());
      send([&] { ws_.key_edit(*raw->c, t.toStdString(), key); });
    });
    connect(cb, &QComboBox::activated, this, [this, raw](int index) {
      const std::string item = raw->combo->itemText(index).toStdString();
      send([&] { ws_.choose(*raw->c, item); });
    });
  } else if (auto* ab = qobject_cast<QAbstractButton*>(w)) {
    b->button = ab;
    ab->setFocusPolicy(Qt::ClickFocus);
    connect(ab, &QAbstractButton::clicked, this, [this, raw] { click(*raw); });
  } else if (auto* l = qobject_cast<QLabel*>(w)) {
    b->label = l;
  } else if (auto* g = qobject_cast<QGroupBox*>(w)) {
    b->group = g;
  }
  bound_[&c] = std::move(b);
}

void Binder::before_click(const Control& c, std::function<bool()> hook) { before_click_[&c] = std::move(hook); }

void Binder::click(Bound& b) {
  if (ws_.ended()) {
    // The message the program ended with has been read: the last window goes.
    if (&b.c->screen == &ws_.FrmERR) {
      ended_message_read_ = true;
      sync();
    }
    return;
  }
  auto hook = before_click_.find(b.c);
  if (hook != before_click_.end() && !hook->second()) {
    sync();
    return;
  }
  send([&] { ws_.click(*b.c); });
}

bool Binder::showing(const Screen& s) const {
  if (!s.visible) return false;
  return !ws_.ended() || (&s == &ws_.FrmERR && !ended_message_read_);
}

template <typename F>
void Binder::send(F&& f) {
  if (ws_.ended()) return;
  ++sending_;
  try {
    f();
  } catch (const UsageError&) {
    // The widgets showed something the core no longer offers (a box just masked,
    // an item just taken away): nothing happens, and the sync below shows why.
  }
  --sending_;
  if (sending_ == 0) sync();
}

bool Binder::eventFilter(QObject* watched, QEvent* event) {
  // A window closed by its frame.
  if (event->type() == QEvent::Close && !by_widget_.count(watched)) {
    for (auto& win : windows_) {
      if (win->window != watched) continue;
      if (ws_.ended() && win->screen == &ws_.FrmERR && !ended_message_read_) {
        ended_message_read_ = true;
        QTimer::singleShot(0, this, [this] { sync(); });
      }
      if (syncing_ || ws_.ended()) return false;
      event->ignore();
      if (win->screen == &ws_.FrmMain) {
        send([&] { ws_.click(ws_.FrmMain.CmdEnd); });
      } else if (win->screen == &ws_.FrmERR) {
        send([&] { ws_.click(ws_.FrmERR.Command1); });
      } else if (win->screen == &ws_.FrmDisplayKashf && !ws_.FrmKashf.visible) {
        // The browser is the observer's main window while the start screen is
        // hidden: closing it ends the program as "Exit" does. With a report open
        // it stays, so that nothing typed is lost.
        send([&] { ws_.unload(ws_.FrmMain); });
      }
      return true;
    }
    return false;
  }
  auto it = by_widget_.find(watched);
  if (it == by_widget_.end()) return false;
  Bound& b = *it->second;
  switch (event->type()) {
    case QEvent::KeyPress: {
      auto* ke = static_cast<QKeyEvent*>(event);
      if (ke->key() == Qt::Key_Return || ke->key() == Qt::Key_Enter) {
        if (b.combo && b.combo->view()->isVisible()) return false;  // the open list takes its own Enter
        if (ws_.focused() != b.c && is_box(*b.c)) send([&] { ws_.focus_now(*b.c); });
        send([&] { ws_.press_enter(); });
        return true;
      }
      // Only Enter walks the form.
      if (ke->key() == Qt::Key_Tab || ke->key() == Qt::Key_Backtab) return true;
      last_key_ = ke->text().toStdString();
      return false;
    }
    case QEvent::FocusIn: {
      if (syncing_ || sending_ || ws_.ended()) return false;
      const auto reason = static_cast<QFocusEvent*>(event)->reason();
      if (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason) return false;
      // A press on a button or list carries its own move of the focus.
      if (reason == Qt::MouseFocusReason && (b.button || (b.combo && watched == b.combo))) return false;
      if (!b.c->focusable() || ws_.focused() == b.c) return false;
      send([&] { ws_.focus_now(*b.c); });
      return false;
    }
    case QEvent::Enter:
      // The pointer over a control that answers it (a board's picture shows its hint).
      if (b.c->handler(Event::MouseMove) && !syncing_ && !ws_.ended()) {
        pointed_ = b.c;
        send([&] { ws_.point_at(*b.c); });
      }
      return false;
    case QEvent::MouseButtonPress:
      if (b.combo && watched == b.combo) send([&] { ws_.click(*b.c); });
      return false;
    case QEvent::MouseButtonRelease:
      if (b.label) {
        if (std::exchange(b.skip_release, false)) return true;
        click(b);
        return true;
      }
      return false;
    case QEvent::MouseButtonDblClick:
      if (b.label) {
        b.skip_release = true;
        send([&] { ws_.dbl_click(*b.c); });
        return true;
      }
      return false;
    default:
      return false;
  }
}

void Binder::sync() {
  if (syncing_) return;
  syncing_ = true;
  for (auto& win : windows_) {
    const bool shown = showing(*win->screen);
    if (!shown && !(win->window && win->window->isVisible())) continue;
    for (Bound* b : win->bound) sync_control(*b);
  }
  for (auto& win : windows_) sync_window(*win);
  sync_focus();
  for (const auto& hook : after_sync) hook();
  syncing_ = false;
  if (ws_.ended() && on_ended && !showing(ws_.FrmERR)) on_ended();
}

void Binder::refresh(const Screen& s) {
  for (auto& win : windows_)
    if (win->screen == &s)
      for (Bound* b : win->bound) sync_control(*b);
  for (const auto& hook : after_sync) hook();
}

void Binder::sync_control(Bound& b) {
  const Control& c = *b.c;
  bool masked = false;
  for (const Control* m : c.masks) {
    bool on = m->visible;
    for (const Control* p = m->container; on && p != nullptr; p = p->container) on = p->visible;
    masked = masked || on;
  }
  const int shown = c.visible && !masked && !b.is_mask;
  if (shown != b.shown) {
    b.w->setVisible(shown != 0);
    for (QWidget* cap : b.captions) cap->setVisible(shown != 0);
    b.shown = shown;
  }
  if (static_cast<int>(c.enabled) != b.enabled) {
    b.w->setEnabled(c.enabled);
    b.enabled = c.enabled;
  }
  if (b.combo && c.items != b.items) {
    QStringList list;
    list.reserve(static_cast<qsizetype>(c.items.size()));
    for (const std::string& i : c.items) list << q(i);
    b.combo->clear();
    b.combo->addItems(list);
    b.items = c.items;
    b.text.clear();
    b.combo->setEditText(q(c.text));
  }
  if (b.edit) {
    if (b.edit->text().toStdString() != c.text) {
      b.edit->setText(q(c.text));
      // A box of the right-to-left form shows a number or a code left to right
      // ("-3.3", not "3.3-"), still flush right; Persian text stays right to left.
      if (b.follows_text) {
        const bool persian = has_right_to_left_letter(c.text);
        b.edit->setLayoutDirection(persian ? Qt::RightToLeft : Qt::LeftToRight);
        b.edit->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
      }
      // A long text (the heading, a report) is read from its start.
      if (!b.edit->hasFocus()) b.edit->setCursorPosition(0);
    }
    if (static_cast<int>(c.locked) != b.locked) {
      b.edit->setReadOnly(c.locked);
      b.locked = c.locked;
    }
    if (c.max_length > 0 && b.edit->maxLength() != c.max_length) b.edit->setMaxLength(c.max_length);
  } else if (c.text != b.text) {
    if (b.page) b.page->setPlainText(q(c.text));
    else if (b.label && c.kind == Kind::Image) show_picture(b.label, c.text);
    else if (b.label) b.label->setText(q(c.text));
    else if (b.button) show_on_button(b.button, c.text);
    else if (b.group && !c.text.empty()) b.group->setTitle(q(c.text));  // else the form's own title
    b.text = c.text;
  }
  if (b.button && b.button->isCheckable() && static_cast<int>(c.value) != b.value) {
    b.button->setChecked(c.value);
    b.value = c.value;
  }
  if (c.back_color != b.back || c.fore_color != b.fore) {
    QWidget* target = b.combo ? static_cast<QWidget*>(b.edit) : b.w;
    QPalette pal = target->palette();
    const QPalette base = QApplication::palette(target);
    if (is_box(c)) {
      pal.setColor(QPalette::Base, is_system_colour(c.back_color) ? base.color(QPalette::Base) : colour(c.back_color));
    }
    const QColor fore = is_system_colour(c.fore_color) ? base.color(QPalette::Text) : colour(c.fore_color);
    pal.setColor(QPalette::Text, fore);
    pal.setColor(QPalette::WindowText, fore);
    target->setPalette(pal);
    b.back = c.back_color;
    b.fore = c.fore_color;
  }
}

void Binder::sync_window(Window& win) {
  QWidget* w = win.window;
  if (w == nullptr) return;
  const Screen& s = *win.screen;
  const bool shown = showing(s);
  const bool modal = s.modal();
  if (shown && w->isVisible() && modal != win.modal) w->hide();
  if (shown && !w->isVisible()) {
    w->setWindowModality(modal ? Qt::ApplicationModal : Qt::NonModal);
    win.modal = modal;
    const QString title = title_of(s, win.form);
    if (w->windowTitle() != title) w->setWindowTitle(title);
    if (!win.sized) {
      // The window takes what its form asks, within the screen it stands on.
      QSize want = win.form->sizeHint() + QSize(24, 24);
      if (const QScreen* scr = QGuiApplication::primaryScreen()) want = want.boundedTo(scr->availableSize());
      w->resize(want);
      win.sized = true;
    }
    if (&s == &ws_.FrmTooltip) w->move(QCursor::pos() + QPoint(12, 16));  // beside the pointer
    w->show();
  } else if (shown && &s == &ws_.FrmTooltip) {
    w->adjustSize();
    w->move(QCursor::pos() + QPoint(12, 16));
  } else if (!shown && w->isVisible()) {
    w->hide();
  }
}

void Binder::sync_focus() {
  Screen* active = ws_.active_screen();
  if (active != nullptr) {
    QWidget* w = window(*active);
    if (w && w->isVisible() && QApplication::activeWindow() != w) {
      w->raise();
      w->activateWindow();
      // At once, not when the window system answers: the next key must find it.
      QApplication::setActiveWindow(w);
    }
  }
  Control* c = ws_.focused();
  if (c == nullptr) return;
  auto it = bound_.find(c);
  if (it == bound_.end()) return;
  Bound& b = *it->second;
  QWidget* target = b.combo ? b.combo : b.w;
  if (!target->isVisible() || target->hasFocus()) return;
  target->setFocus(Qt::OtherFocusReason);
  // The focus arrives as the Enter key brings it: the first key replaces the text.
  if (b.edit) b.edit->selectAll();
}

QWidget* Binder::window(const Screen& s) const {
  for (const auto& win : windows_)
    if (win->screen == &s) return win->window;
  return nullptr;
}

QWidget* Binder::form(const Screen& s) const {
  for (const auto& win : windows_)
    if (win->screen == &s) return win->form;
  return nullptr;
}

QWidget* Binder::widget(const Control& c) const {
  auto it = bound_.find(&c);
  return it == bound_.end() ? nullptr : it->second->w;
}

Control* Binder::control_of(const QObject* w) const {
  auto it = by_widget_.find(w);
  return it == by_widget_.end() ? nullptr : it->second->c;
}

Binder::Parity Binder::parity(const Screen& screen, const QWidget& form) {
  Parity p;
  std::map<std::string, int> count;
  const auto children = form.findChildren<QWidget*>();
  for (const QWidget* child : children) {
    const std::string name = child->objectName().toStdString();
    if (name.empty() || name.rfind("ui_", 0) == 0 || name.rfind("qt_", 0) == 0) continue;
    const Control* c = screen.find(name);
    if (c == nullptr || c->name != name) {
      p.widgets_without_control.push_back(name);
      continue;
    }
    ++count[name];
  }
  for (const Control* c : screen.controls()) {
    const int n = count[c->name];
    if (n == 0) p.controls_without_widget.push_back(c->name);
    if (n > 1) p.controls_with_many_widgets.push_back(c->name);
  }
  return p;
}

}  // namespace obsdesk
