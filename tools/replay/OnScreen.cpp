#include "replay/OnScreen.h"

#include "screen/Controls.h"
#include "screen/Lists.h"

#include <algorithm>
#include <array>

#include <QBitmap>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTabWidget>
#include <QTreeView>

namespace wheelwright::replay {
namespace {

// What stands behind the 128 codes of ASCII; from 160 on the codes are those of Unicode.
constexpr std::array<char16_t, 32> kBehindAscii = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

// Keeps the first difference that it is told of.
class Comparison {
 public:
  void Add(const char* what, const QString& shown, const QString& meant) {
    if (shown == meant || !first_.empty()) return;
    first_ =
        std::string(what) + " \"" + shown.toStdString() + "\" instead of \"" + meant.toStdString() + "\"";
  }
  void Add(const char* what, int shown, int meant) {
    Add(what, QString::number(shown), QString::number(meant));
  }
  const std::string& First() const { return first_; }

 private:
  std::string first_;
};

// A label reads marks only for the input whose name it is.
QString CaptionOn(QWidget& widget) {
  if (const auto* frame = qobject_cast<QGroupBox*>(&widget)) return AsRead(frame->title());
  const QString text = widget.property("text").toString();
  const auto* label = qobject_cast<QLabel*>(&widget);
  return label != nullptr && label->buddy() == nullptr ? text : AsRead(text);
}

void CompareTick(const CheckBox& box, const QCheckBox& shown, Comparison& comparison) {
  comparison.Add("check state", shown.checkState(),
                 box.State() == 0   ? Qt::Unchecked
                 : box.State() == 1 ? Qt::Checked
                                    : Qt::PartiallyChecked);
}

void CompareRows(const RowList& list, const QAbstractItemModel& shown, Comparison& comparison) {
  comparison.Add("number of rows", shown.rowCount(), list.Count());
  for (int row = 0; row < list.Count(); ++row) {
    comparison.Add("row", shown.index(row, 0).data().toString(),
                   AsWritten(list.Rows()[static_cast<std::size_t>(row)]));
  }
}

void ComparePick(const PickList& list, const QComboBox& shown, Comparison& comparison) {
  CompareRows(list, *shown.model(), comparison);
  comparison.Add("text", shown.currentText(), AsWritten(list.Text()));
  comparison.Add("row", shown.currentIndex(), list.Row());
}

QString Numbers(std::vector<int> rows) {
  std::sort(rows.begin(), rows.end());
  QString text;
  for (const int row : rows) text += QString::number(row) + " ";
  return text;
}

void CompareChoice(const RowList& list, const std::vector<int>& chosen, const QListView& shown,
                   Comparison& comparison) {
  std::vector<int> selected;
  for (const QModelIndex& index : shown.selectionModel()->selectedRows()) {
    selected.push_back(index.row());
  }
  CompareRows(list, *shown.model(), comparison);
  comparison.Add("chosen rows", Numbers(selected), Numbers(chosen));
}

void CompareTabs(const TabGroup& group, const QTabWidget& shown, Comparison& comparison) {
  QString captions;
  for (const std::string& tab : group.Tabs()) captions += AsWritten(tab).replace("\r\n", "\n") + "|";
  QString shownCaptions;
  for (int tab = 0; tab < shown.count(); ++tab) shownCaptions += AsRead(shown.tabText(tab)) + "|";
  comparison.Add("captions", shownCaptions, captions);
  comparison.Add("tab in front", shown.currentIndex(), group.Tab());
}

// The middle column holds captions, the others texts of the file and whole sentences.
void CompareReport(const ReportList& list, const QAbstractItemModel& shown, Comparison& comparison) {
  const auto rows = static_cast<int>(list.Rows().size());
  comparison.Add("number of rows", shown.rowCount(), rows);
  for (int column = 0; column < shown.columnCount(); ++column) {
    const auto place = static_cast<std::size_t>(column);
    comparison.Add("header", shown.headerData(column, Qt::Horizontal).toString(),
                   AsRead(list.Columns()[place]));
    for (int row = 0; row < rows; ++row) {
      const std::string& cell = list.Rows()[static_cast<std::size_t>(row)][place];
      comparison.Add("cell", shown.index(row, column).data().toString(),
                     column == 1 ? AsRead(cell) : AsWritten(cell));
    }
  }
}

// What the widget itself paints, a dot for each of the design's; nothing where it paints nothing.
QImage Painted(QWidget& widget) {
  if (!widget.isVisible()) widget.grab();  // which lays it out
  // A hidden page may have left it no room.
  if (widget.size().isEmpty()) widget.resize(widget.sizeHint());
  QImage image(widget.size(), QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  widget.render(&image, {}, {}, QWidget::RenderFlags());
  return image;
}

// Of a file that ends too early some dots are what the memory held, so only the place is compared.
void ComparePicture(const Picture& picture, QWidget& widget, Comparison& comparison) {
  const QRegion painted(QBitmap::fromImage(Painted(widget).createAlphaMask()));
  const QRectF place(picture.Left(), picture.Top(), picture.Width(), picture.Height());
  comparison.Add("picture", !painted.isEmpty(), !place.isEmpty());
  comparison.Add("picture outside its place", !painted.subtracted(place.toAlignedRect()).isEmpty(), false);
}

void CompareSwatch(const Swatch& swatch, QWidget& widget, Comparison& comparison) {
  const QImage painted = Painted(widget);
  const QColor shown = painted.pixelColor(painted.rect().center());
  const auto& color = swatch.Color();
  const QColor meant = color ? QColor((*color)[0], (*color)[1], (*color)[2]) : Qt::transparent;
  comparison.Add("color", shown.name(QColor::HexArgb), meant.name(QColor::HexArgb));
}

void CompareContent(const Control& control, QWidget& widget, Comparison& comparison) {
  const auto* const plain = &control;
  // The frame around the picture has no caption.
  const auto* captioned = dynamic_cast<const Captioned*>(plain);
  if (captioned != nullptr && widget.metaObject() != &QFrame::staticMetaObject) {
    comparison.Add("caption", CaptionOn(widget), AsRead(captioned->Caption()));
  }
  if (const auto* box = dynamic_cast<const CheckBox*>(plain)) {
    CompareTick(*box, static_cast<QCheckBox&>(widget), comparison);
  } else if (const auto* text = dynamic_cast<const TextBox*>(plain)) {
    comparison.Add("text", static_cast<QLineEdit&>(widget).text(), AsWritten(text->Text()));
  } else if (const auto* bar = dynamic_cast<const ScrollBar*>(plain)) {
    comparison.Add("value", static_cast<QScrollBar&>(widget).value(), bar->Value());
  } else if (const auto* pick = dynamic_cast<const PickList*>(plain)) {
    ComparePick(*pick, static_cast<QComboBox&>(widget), comparison);
  } else if (const auto* list = dynamic_cast<const ListBox*>(plain)) {
    const int row = list->Row();
    CompareChoice(*list, row < 0 ? std::vector<int>() : std::vector<int>{row},
                  static_cast<QListView&>(widget), comparison);
  } else if (const auto* marks = dynamic_cast<const MarkList*>(plain)) {
    CompareChoice(*marks, marks->Marked(), static_cast<QListView&>(widget), comparison);
  } else if (const auto* group = dynamic_cast<const TabGroup*>(plain)) {
    CompareTabs(*group, static_cast<QTabWidget&>(widget), comparison);
  } else if (const auto* report = dynamic_cast<const ReportList*>(plain)) {
    CompareReport(*report, *static_cast<QTreeView&>(widget).model(), comparison);
  } else if (const auto* picture = dynamic_cast<const Picture*>(plain)) {
    ComparePicture(*picture, widget, comparison);
  } else if (const auto* swatch = dynamic_cast<const Swatch*>(plain)) {
    CompareSwatch(*swatch, widget, comparison);
  }
}

}  // namespace

QString AsWritten(const std::string& bytes) {
  QString text;
  for (const char byte : bytes) {
    const auto code = static_cast<unsigned char>(byte);
    text += QChar(code < 0x80 || code >= 0xA0 ? char16_t{code} : kBehindAscii[code - 0x80]);
  }
  return text;
}

QString AsRead(const std::string& caption) { return AsRead(AsWritten(caption).replace("\r\n", "\n")); }

QString AsRead(QString widgetsCaption) {
  static const QRegularExpression kMarked("&(.)", QRegularExpression::DotMatchesEverythingOption);
  return widgetsCaption.replace(kMarked, "\\1");
}

std::string DifferenceOnScreen(const Control& control, QWidget& widget) {
  Comparison comparison;
  comparison.Add("visible", !widget.isHidden(), control.IsVisible());
  comparison.Add("enabled", widget.isEnabled(), control.IsEnabledHere());
  CompareContent(control, widget, comparison);
  return comparison.First();
}

}  // namespace wheelwright::replay
