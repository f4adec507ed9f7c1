#include "forms/qt/layout/WindowSet.h"

#include "forms/qt/layout/Layouts.h"
#include "forms/qt/widgets/ShownText.h"

#include <algorithm>

#include <QApplication>
#include <QCloseEvent>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSessionManager>
#include <QShortcut>
#include <QTabBar>
#include <QTabWidget>

namespace wheelwright {
namespace {

// What is in a window: all of it in sight, but for a screen that hasn't the room.
class ContentArea : public QScrollArea {
 public:
  explicit ContentArea(QWidget* window) : QScrollArea(window) {
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setWidget(new QWidget);
    auto* whole = new QVBoxLayout(window);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(this);
  }

  void FitInto(QSize room) {
    room_ = room;
    updateGeometry();
  }

  QSize sizeHint() const override { return widget()->sizeHint().expandedTo(Needed()).boundedTo(room_); }
  QSize minimumSizeHint() const override { return Needed().boundedTo(room_); }

 protected:
  bool event(QEvent* event) override {
    if (event->type() == QEvent::LayoutRequest) updateGeometry();
    return QScrollArea::event(event);
  }

 private:
  // A row of tabs could do with less, by its arrows; only a small screen shall show them.
  QSize Needed() const {
    QSize needed = widget()->minimumSizeHint();
    int least = 0;
    int whole = 0;
    for (const auto* tabs : widget()->findChildren<QTabWidget*>()) {
      least = std::max(least, tabs->minimumSizeHint().width());
      whole = std::max(whole, tabs->tabBar()->sizeHint().width());
    }
    needed.rwidth() += std::max(whole - least, 0);
    if (needed.height() > room_.height()) needed.rwidth() += verticalScrollBar()->sizeHint().width();
    return needed;
  }

  QSize room_{QWIDGETSIZE_MAX, QWIDGETSIZE_MAX};
};

// What the three real windows have in common: title, coming and going, and the close box.
class WindowShell : public QWidget {
 public:
  // A window with an owner stays above it and is none the less not modal; Escape closes it as its
  // close box does.
  WindowShell(Window& window, EventEdge& edge, QWidget* owner)
      : QWidget(owner, Qt::Window), window_(window), edge_(edge) {
    setObjectName(QString::fromStdString(window.Name()));
    setAttribute(Qt::WA_QuitOnClose, owner == nullptr);
    setWindowTitle(ShownTitle(window.Title()));
    window.notice = [this] { Follow(); };
    if (owner == nullptr) return;
    QObject::connect(new QShortcut(QKeySequence::Cancel, this), &QShortcut::activated, this, &QWidget::close);
  }
  ~WindowShell() override { window_.notice = nullptr; }

 protected:
  // Asks the plain window's handler; the window only goes if the plain one has gone.
  void closeEvent(QCloseEvent* event) override {
    edge_.Enter([this] { Run(window_.closeRequested); });
    event->setAccepted(!window_.IsVisible());
  }

  // Over the middle of its owner, where the person is looking, and on the screen.
  void showEvent(QShowEvent* event) override {
    if (parentWidget() == nullptr || event->spontaneous()) return;
    const QRect screen = parentWidget()->screen()->availableGeometry();
    // Its own frame isn't known before it is there.
    QRect place(QPoint(), size() + parentWidget()->frameSize() - parentWidget()->size());
    place.moveCenter(parentWidget()->frameGeometry().center());
    place.moveBottomRight(
        {std::min(place.right(), screen.right()), std::min(place.bottom(), screen.bottom())});
    move(std::max(place.left(), screen.left()), std::max(place.top(), screen.top()));
  }

 private:
  void Follow() {
    setWindowTitle(ShownTitle(window_.Title()));
    if (isHidden() == window_.IsVisible()) setVisible(window_.IsVisible());
  }

  Window& window_;
  EventEdge& edge_;
};

}  // namespace

WindowSet::WindowSet(Session& session, EventEdge& edge)
    : session_(session),
      main_(std::make_unique<WindowShell>(session.main, edge, nullptr)),
      error_(std::make_unique<WindowShell>(session.error, edge, main_.get())),
      exporter_(std::make_unique<WindowShell>(session.exporter, edge, main_.get())),
      mirrors_(edge) {
  LayOutMain(session.main, (new ContentArea(main_.get()))->widget(), mirrors_);
  LayOutError(session.error, (new ContentArea(error_.get()))->widget(), mirrors_);
  LayOutExport(session.exporter, (new ContentArea(exporter_.get()))->widget(), mirrors_);
  QObject::connect(qApp, &QGuiApplication::commitDataRequest, main_.get(), [this](QSessionManager& ending) {
    if (ending.allowsInteraction() && !main_->close()) ending.cancel();
  });
}

void WindowSet::FitInto(QSize room) {
  for (QWidget* window : {main_.get(), error_.get(), exporter_.get()}) {
    static_cast<ContentArea*>(window->findChild<QScrollArea*>(QString(), Qt::FindDirectChildrenOnly))
        ->FitInto(room);
    window->layout()->activate();
    const QSize size = window->size().boundedTo(room);
    if (size != window->size()) window->resize(size);
  }
}

QWidget& WindowSet::Of(const Window& window) const {
  if (&window == &session_.error) return *error_;
  if (&window == &session_.exporter) return *exporter_;
  return *main_;
}

}  // namespace wheelwright
