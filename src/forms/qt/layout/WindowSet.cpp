#include "forms/qt/layout/WindowSet.h"

#include "forms/qt/layout/Layouts.h"
#include "forms/qt/widgets/ContentArea.h"
#include "forms/qt/widgets/ShownText.h"

#include <algorithm>

#include <QApplication>
#include <QCloseEvent>
#include <QScreen>
#include <QSessionManager>
#include <QShortcut>

namespace wheelwright {
namespace {

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

// The empty widget for all that is in a window.
QWidget* ContentOf(QWidget& window) {
  auto* area = new ContentArea;
  auto* whole = new QVBoxLayout(&window);
  whole->setContentsMargins(0, 0, 0, 0);
  whole->addWidget(area);
  return area->widget();
}

}  // namespace

WindowSet::WindowSet(Session& session, EventEdge& edge)
    : session_(session),
      main_(std::make_unique<WindowShell>(session.main, edge, nullptr)),
      error_(std::make_unique<WindowShell>(session.error, edge, main_.get())),
      exporter_(std::make_unique<WindowShell>(session.exporter, edge, main_.get())),
      mirrors_(edge) {
  LayOutMain(session.main, ContentOf(*main_), mirrors_);
  LayOutError(session.error, ContentOf(*error_), mirrors_);
  LayOutExport(session.exporter, ContentOf(*exporter_), mirrors_);
  QObject::connect(qApp, &QGuiApplication::commitDataRequest, main_.get(), [this](QSessionManager& ending) {
    if (ending.allowsInteraction() && !main_->close()) ending.cancel();
  });
}

void WindowSet::FitInto(QSize room) {
  for (QWidget* window : {main_.get(), error_.get(), exporter_.get()}) {
    static_cast<ContentArea*>(window->layout()->itemAt(0)->widget())->FitInto(room);
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
