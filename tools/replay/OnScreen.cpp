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

std::string Unlike(const char* what, const QString& shown, const QString& meant) {
  if (shown == meant) return "";
  return std::string(what) + " \"" + shown.toStdString() + "\" instead of \"" +
         meant.toStdString() + "\"";
}

std::string Unlike(const char* what, int shown, int meant) {
  return Unlike(what, QString::number(shown), QString::number(meant));
}

// The first that says anything.
std::string FirstOf(std::initializer_list<std::string> differences) {
  const auto* found = std::find_if(differences.begin(), differences.end(),
                                   [](const std::string& text) { return !text.empty(); });
  return found == differences.end() ? "" : *found;
}

// A label reads marks only for the input whose name it is.
QString CaptionOn(QWidget& widget) {
  if (const auto* frame = qobject_cast<QGroupBox*>(&widget)) return AsRead(frame->title());
  const QString text = widget.property("text").toString();
  const auto* label = qobject_cast<QLabel*>(&widget);
  return label != nullptr && label->buddy() == nullptr ? text : AsRead(text);
}

std::string CaptionDifference(const Captioned& control, QWidget& widget) {
  return Unlike("caption", CaptionOn(widget), AsRead(control.Caption()));
}

std::string TickDifference(const CheckBox& box, QWidget& widget) {
  const Qt::CheckState meant = box.State() == 0   ? Qt::Unchecked
                               : box.State() == 1 ? Qt::Checked
                                                  : Qt::PartiallyChecked;
  return FirstOf({CaptionDifference(box, widget),
                  Unlike("check state", static_cast<QCheckBox&>(widget).checkState(), meant)});
}

std::string RowsDifference(const RowList& list, const QAbstractItemModel& shown) {
  std::string difference = Unlike("number of rows", shown.rowCount(), list.Count());
  for (int row = 0; difference.empty() && row < list.Count(); ++row) {
    difference = Unlike("row", shown.index(row, 0).data().toString(),
                        AsWritten(list.Rows()[static_cast<std::size_t>(row)]));
  }
  return difference;
}

std::string PickDifference(const PickList& list, QWidget& widget) {
  const auto& box = static_cast<QComboBox&>(widget);
  return FirstOf({RowsDifference(list, *box.model()),
                  Unlike("text", box.currentText(), AsWritten(list.Text())),
                  Unlike("row", box.currentIndex(), list.Row())});
}

QString Numbers(std::vector<int> rows) {
  std::sort(rows.begin(), rows.end());
  QString text;
  for (const int row : rows) text += QString::number(row) + " ";
  return text;
}

std::string ChoiceDifference(const RowList& list, const std::vector<int>& chosen, QWidget& widget) {
  const auto& view = static_cast<QListView&>(widget);
  std::vector<int> selected;
  for (const QModelIndex& index : view.selectionModel()->selectedRows()) {
    selected.push_back(index.row());
  }
  return FirstOf({RowsDifference(list, *view.model()),
                  Unlike("chosen rows", Numbers(selected), Numbers(chosen))});
}

std::string TabDifference(const TabGroup& group, QWidget& widget) {
  const auto& tabs = static_cast<QTabWidget&>(widget);
  std::string difference =
      FirstOf({Unlike("number of tabs", tabs.count(), static_cast<int>(group.Tabs().size())),
               Unlike("tab in front", tabs.currentIndex(), group.Tab())});
  for (int tab = 0; difference.empty() && tab < tabs.count(); ++tab) {
    difference =
        Unlike("caption", AsRead(tabs.tabText(tab)),
               AsWritten(group.Tabs()[static_cast<std::size_t>(tab)]).replace("\r\n", "\n"));
  }
  return difference;
}

// The middle column holds captions, the others texts of the file and whole sentences.
std::string ReportDifference(const ReportList& list, QWidget& widget) {
  const QAbstractItemModel& shown = *static_cast<QTreeView&>(widget).model();
  const auto& rows = list.Rows();
  std::string difference =
      Unlike("number of rows", shown.rowCount(), static_cast<int>(rows.size()));
  for (int column = 0; difference.empty() && column < shown.columnCount(); ++column) {
    const auto place = static_cast<std::size_t>(column);
    difference = Unlike("header", shown.headerData(column, Qt::Horizontal).toString(),
                        AsRead(list.Columns()[place]));
    for (int row = 0; difference.empty() && row < shown.rowCount(); ++row) {
      const std::string& cell = rows[static_cast<std::size_t>(row)][place];
      difference = Unlike("cell", shown.index(row, column).data().toString(),
                          column == 1 ? AsRead(cell) : AsWritten(cell));
    }
  }
  return difference;
}

// What the widget itself paints, a dot for each of the design's; nothing where it paints nothing.
QImage Painted(QWidget& widget) {
  if (!widget.isVisible()) widget.grab();  // which lays it out
  QImage image(widget.size(), QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  widget.render(&image, {}, {}, QWidget::RenderFlags());
  return image;
}

// Of a file that ends too early some dots are what the memory held, so only the place is compared.
std::string PictureDifference(const Picture& picture, QWidget& widget) {
  const QRegion painted(QBitmap::fromImage(Painted(widget).createAlphaMask()));
  const QRectF place(picture.Left(), picture.Top(), picture.Width(), picture.Height());
  const bool isThere = !painted.isEmpty();
  return FirstOf(
      {Unlike("picture", isThere, !place.isEmpty()),
       Unlike("picture outside its place",
              isThere && !place.toAlignedRect().contains(painted.boundingRect()), false)});
}

std::string SwatchDifference(const Swatch& swatch, QWidget& widget) {
  const QImage painted = Painted(widget);
  const QColor shown = painted.pixelColor(painted.rect().center());
  const auto& color = swatch.Color();
  const QColor meant = color ? QColor((*color)[0], (*color)[1], (*color)[2]) : Qt::transparent;
  return Unlike("color", shown.name(QColor::HexArgb), meant.name(QColor::HexArgb));
}

std::string ContentDifference(const Control& control, QWidget& widget) {
  const auto* const plain = &control;
  if (const auto* box = dynamic_cast<const CheckBox*>(plain)) return TickDifference(*box, widget);
  if (qobject_cast<QFrame*>(&widget) != nullptr && dynamic_cast<const Frame*>(plain) != nullptr) {
    return "";  // the frame around the picture, which has no caption
  }
  if (const auto* captioned = dynamic_cast<const Captioned*>(plain)) {
    return CaptionDifference(*captioned, widget);
  }
  if (const auto* box = dynamic_cast<const TextBox*>(plain)) {
    return Unlike("text", static_cast<QLineEdit&>(widget).text(), AsWritten(box->Text()));
  }
  if (const auto* bar = dynamic_cast<const ScrollBar*>(plain)) {
    return Unlike("value", static_cast<QScrollBar&>(widget).value(), bar->Value());
  }
  if (const auto* list = dynamic_cast<const PickList*>(plain)) return PickDifference(*list, widget);
  if (const auto* list = dynamic_cast<const ListBox*>(plain)) {
    return ChoiceDifference(
        *list, list->Row() < 0 ? std::vector<int>() : std::vector<int>{list->Row()}, widget);
  }
  if (const auto* list = dynamic_cast<const MarkList*>(plain)) {
    return ChoiceDifference(*list, list->Marked(), widget);
  }
  if (const auto* group = dynamic_cast<const TabGroup*>(plain))
    return TabDifference(*group, widget);
  if (const auto* list = dynamic_cast<const ReportList*>(plain)) {
    return ReportDifference(*list, widget);
  }
  if (const auto* picture = dynamic_cast<const Picture*>(plain)) {
    return PictureDifference(*picture, widget);
  }
  return SwatchDifference(dynamic_cast<const Swatch&>(control), widget);
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

QString AsRead(const std::string& caption) {
  return AsRead(AsWritten(caption).replace("\r\n", "\n"));
}

QString AsRead(QString widgetsCaption) {
  static const QRegularExpression kMarked("&(.)", QRegularExpression::DotMatchesEverythingOption);
  return widgetsCaption.replace(kMarked, "\\1");
}

std::string DifferenceOnScreen(const Control& control, QWidget& widget) {
  return FirstOf({Unlike("visible", !widget.isHidden(), control.IsVisible()),
                  Unlike("enabled", widget.isEnabled(), control.IsEnabledHere()),
                  ContentDifference(control, widget)});
}

}  // namespace wheelwright::replay
