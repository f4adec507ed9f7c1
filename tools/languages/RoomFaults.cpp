#include "languages/RoomFaults.h"

#include "editor/ShowVehicle.h"
#include "language/LanguageFiles.h"
#include "languages/Sightings.h"
#include "replay/OnScreen.h"
#include "replay/RealScreen.h"
#include "screen/Fields.h"

#include <algorithm>
#include <array>
#include <sstream>
#include <utility>

#include <QCoreApplication>
#include <QHeaderView>
#include <QTreeView>

namespace wheelwright::languages {
namespace {

// The window grows with its captions. This many pixels fit on every screen, in the usual font.
constexpr int kMostPixels = 1024;

enum Column { kFieldColumn = 1, kProblemColumn };

// The texts of the third column; a number of values stands between the first two.
constexpr std::size_t kWrongCount = 102;
constexpr std::size_t kExpectedCount = 103;
constexpr std::array<std::size_t, 2> kProblems = {104, 105};
constexpr std::array<std::size_t, 3> kHeaders = {107, 108, 109};

// A layout asks for the next one: of the window, of the pages in it, of the rows in them.
void LayOut() {
  constexpr int kSteps = 4;
  for (int step = 0; step < kSteps; ++step) QCoreApplication::processEvents();
}

class RoomCheck {
 public:
  explicit RoomCheck(const std::vector<std::string>& entries) : entries_(entries), screen_(unread_) {
    screen_.windows.Of(Main()).setUpdatesEnabled(false);  // nothing looks at what is painted
    screen_.windows.Of(Main()).show();
    screen_.windows.Of(screen_.stage.session.error).show();  // whose last column fills it
  }

  std::vector<Fault> Faults() {
    CheckProblems();
    for (const std::int16_t kind : {kOrdinaryVehicle, kPercentLine}) {
      if (CheckWidth(kind)) break;
    }
    return std::move(faults_);
  }

 private:
  FrmMain& Main() { return screen_.stage.session.main; }

  void Show(const std::vector<std::string>& entries, std::int16_t lineKind) {
    Session& session = screen_.stage.session;
    for (std::size_t i = 0; i < entries.size(); ++i) session.vars.Lang[i] = entries[i];
    ApplyLanguage(session);
    ApplyLineKindCaptions(session, lineKind);
    LayOut();
  }

  int WidthOfWindow() { return screen_.windows.Of(Main()).minimumSizeHint().width(); }

  // The window of load problems names fields and problems in columns of a fixed width.
  void CheckProblems();
  void CheckColumn(Column column, std::size_t entry, const std::string& text);
  void CheckHeader(int column, std::size_t entry);
  void AddTooWide(std::size_t entry, int width, int room, const std::string& where);
  QTreeView& Report() {
    return static_cast<QTreeView&>(screen_.windows.Of(screen_.stage.session.error.lstErrors));
  }
  // Whether there was a fault.
  bool CheckWidth(std::int16_t lineKind);
  std::string EntriesToBlame(std::int16_t lineKind, int width);

  const std::vector<std::string>& entries_;
  std::ostringstream unread_;
  replay::RealScreen screen_;
  std::vector<Fault> faults_;
};

void RoomCheck::CheckProblems() {
  for (const View& view : AllViews()) {
    for (const Sighting& sighting : view) {
      const Control* control = Main().Find(sighting.control);
      const bool isField =
          control != nullptr && sighting.use == Use::Label && control->Container() == &Main().SSTab1;
      if (isField) CheckColumn(kFieldColumn, sighting.entry, entries_[sighting.entry]);
    }
  }
  CheckColumn(kProblemColumn, kWrongCount, entries_[kWrongCount] + ": 100 " + entries_[kExpectedCount]);
  for (const std::size_t entry : kProblems) CheckColumn(kProblemColumn, entry, entries_[entry]);
  for (std::size_t column = 0; column < kHeaders.size(); ++column) {
    CheckHeader(static_cast<int>(column), kHeaders[column]);
  }
}

void RoomCheck::CheckColumn(Column column, std::size_t entry, const std::string& text) {
  const int margins = 2 * (Report().style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1);
  AddTooWide(entry, Report().fontMetrics().horizontalAdvance(replay::AsRead(text)),
             Report().header()->sectionSize(column) - margins,
             "where the window of load problems has room for ");
}

// The heads of the columns must be readable even in a font of twice the size.
void RoomCheck::CheckHeader(int column, std::size_t entry) {
  QFont font = Report().font();
  font.setPointSizeF(2 * font.pointSizeF());
  AddTooWide(entry, QFontMetrics(font).horizontalAdvance(replay::AsRead(entries_[entry])),
             Report().header()->sectionSize(column),
             "in a font of twice the size, where its column has room for ");
}

void RoomCheck::AddTooWide(std::size_t entry, int width, int room, const std::string& where) {
  if (width <= room) return;
  const Fault fault = {
      entry, "is " + std::to_string(width) + " pixels wide " + where + std::to_string(room) + "; shorten it"};
  if (std::find(faults_.begin(), faults_.end(), fault) == faults_.end()) faults_.push_back(fault);
}

bool RoomCheck::CheckWidth(std::int16_t lineKind) {
  Show(entries_, lineKind);
  const int width = WidthOfWindow();
  if (width <= kMostPixels) return false;
  faults_.push_back({{},
                     "makes the main window " + std::to_string(width) + " pixels wide, " +
                         std::to_string(kMostPixels) + " are the most; shorten " +
                         EntriesToBlame(lineKind, width)});
  return true;
}

std::string RoomCheck::EntriesToBlame(std::int16_t lineKind, int width) {
  std::string blamed;
  for (std::size_t entry = 0; entry < entries_.size(); ++entry) {
    std::vector<std::string> without = entries_;
    without[entry].clear();
    Show(without, lineKind);
    if (WidthOfWindow() < width) blamed += (blamed.empty() ? "" : ", ") + std::to_string(entry);
  }
  return blamed.empty() ? "the longest captions" : "one or more of the entries " + blamed;
}

}  // namespace

std::vector<Fault> RoomFaults(const std::vector<std::string>& entries) { return RoomCheck(entries).Faults(); }

}  // namespace wheelwright::languages
