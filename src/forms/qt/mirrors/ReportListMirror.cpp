#include "forms/qt/mirrors/ListMirrors.h"
#include "forms/qt/widgets/Inputs.h"
#include "forms/qt/widgets/ShownText.h"

#include <algorithm>
#include <array>

#include <QAbstractTableModel>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QTextDocument>

namespace wheelwright {
namespace {

// Of all columns but the last.
constexpr std::array kColumnWidths = {100, 160};

// A cell as it is read on screen. The second column holds captions of fields, whose marks go.
QString CellText(const ReportList::Row& row, std::size_t column) {
  constexpr std::size_t kCaptionColumn = 1;
  const std::string& text = row.at(column);
  return column == kCaptionColumn ? WithoutMarks(ShownCaption(text)) : Shown(text);
}

// The rows of a list in report form, read straight from the plain list.
class ReportModel : public QAbstractTableModel {
 public:
  ReportModel(const ReportList& list, QTreeView* view)
      : QAbstractTableModel(view), list_(list), view_(*view) {}

  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : known_; }

  int columnCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : static_cast<int>(ReportList::kColumns);
  }

  QVariant data(const QModelIndex& index, int role) const override {
    // An index of nothing has the row -1, which lies behind all others.
    const auto row = static_cast<std::size_t>(index.row());
    const bool isTip = role == Qt::ToolTipRole && IsCutOff(index);
    if (row >= list_.Rows().size() || (role != Qt::DisplayRole && !isTip)) return {};
    const QString text = CellText(list_.Rows()[row], static_cast<std::size_t>(index.column()));
    return isTip ? Qt::convertFromPlainText(text) : text;
  }

  QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal) return {};
    return WithoutMarks(ShownCaption(list_.Columns().at(static_cast<std::size_t>(section))));
  }

  // To be called after rows have joined at the end or the list has been cleared.
  void RowsChanged() {
    const int count = static_cast<int>(list_.Rows().size());
    if (count > known_) {
      beginInsertRows({}, known_, count - 1);
      known_ = count;
      endInsertRows();
    } else {
      beginResetModel();
      known_ = count;
      endResetModel();
    }
  }

  void HeadersChanged() { Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1); }

 private:
  bool IsCutOff(const QModelIndex& index) const {
    return view_.sizeHintForIndex(index).width() > view_.columnWidth(index.column());
  }

  const ReportList& list_;
  const QTreeView& view_;
  // The rows that the views know of.
  int known_ = 0;
};

// The last column fills what the others leave, so that no horizontal scroll bar is needed.
class ReportView : public QTreeView {
 public:
  ReportView(const ReportList& list, QWidget* parent)
      : QTreeView(parent), model_(*new ReportModel(list, this)) {
    setModel(&model_);
    setRootIsDecorated(false);
    setAllColumnsShowFocus(true);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setItemDelegate(new RowDelegate(this));
    setEditTriggers(NoEditTriggers);
    setSelectionMode(ExtendedSelection);
    new FocusRing(*this);
    for (std::size_t column = 0; column < kColumnWidths.size(); ++column) {
      header()->resizeSection(static_cast<int>(column), kColumnWidths[column]);
    }
  }

  void Follow(Aspect aspect) {
    if (aspect == Aspect::Rows) model_.RowsChanged();
    if (aspect != Aspect::Content) return;
    model_.HeadersChanged();
    WidenForHeaders();
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->matches(QKeySequence::Copy)) {
      CopyRows();
    } else {
      QTreeView::keyPressEvent(event);
    }
  }

 private:
  // A large font needs more than the design.
  void WidenForHeaders() {
    for (int column = 0; column < header()->count(); ++column) {
      const int needed = header()->sectionSizeHint(column);
      if (header()->sectionSize(column) < needed) header()->resizeSection(column, needed);
    }
  }

  // The toolkit would copy one cell.
  void CopyRows() const {
    QModelIndexList rows = selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end());
    QStringList lines;
    for (const QModelIndex& row : rows) {
      QStringList cells;
      for (int column = 0; column < model_.columnCount(); ++column) {
        cells += row.siblingAtColumn(column).data().toString();
      }
      lines += cells.join('\t') + '\n';
    }
    if (!lines.isEmpty()) QGuiApplication::clipboard()->setText(lines.join(""));
  }

  ReportModel& model_;
};

}  // namespace

ReportListMirror::ReportListMirror(ReportList& list, EventEdge& edge, QWidget* parent)
    : MirrorOf(list, edge, *new ReportView(list, parent)) {
  FollowAll();
}

void ReportListMirror::Follow(Aspect aspect) { static_cast<ReportView&>(widget_).Follow(aspect); }

}  // namespace wheelwright
