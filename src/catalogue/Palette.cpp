#include "catalogue/Palette.h"

#include "core/Numbers.h"
#include "gamefiles/PaletteLabel.h"

#include <string>

namespace wheelwright {
namespace {

// How a colour is marked while it is being deleted.
constexpr std::int16_t kDeletedIndex = -1;

bool NothingToStoreIn(const ListBox& list) { return list.Count() < 1; }

ColorEntry& ChosenColor(Session& session) { return session.vars.Colors.At(session.main.lstColors.Row()); }

void RelabelChosenRow(Session& session) {
  ListBox& list = session.main.lstColors;
  list.ReplaceRow(list.Row(), PaletteLabel(ChosenColor(session)));
}

// Every vehicle's pairs are visited. The numbers aren't shifted: only those of the deleted colour
// change.
void ReferToFirstColor(Table<CarColorEntry>& carColors, std::int16_t deleted) {
  const std::int16_t last = carColors.UpperBound();
  for (int index = 0; index <= last; ++index) {
    for (ColorPair& pair : carColors.At(index).Pairs) {
      if (pair.Color1 == deleted) pair.Color1 = 0;
      if (pair.Color2 == deleted) pair.Color2 = 0;
    }
  }
}

// The first colour kept goes into the blank entry that the table starts with; without one it stays.
Table<ColorEntry> WithoutDeleted(const Table<ColorEntry>& colors) {
  Table<ColorEntry> kept;
  kept.Reset();
  int next = 0;
  for (const ColorEntry& color : colors.Walk()) {
    if (color.Index == kDeletedIndex) continue;
    kept.ExtendTo(next);
    kept.At(next) = color;
    ++next;
  }
  return kept;
}

}  // namespace

void ShowColor(Session& session) {
  FrmMain& main = session.main;
  if (main.lstColors.Count() < 1 || main.lstColors.Row() == RowList::kNoRow) return;
  main.txtColorName.SetText(ChosenColor(session).ColorName);
  for (const ColorBar& color : kColorBars) {
    const std::int16_t component = ChosenColor(session).*color.component;
    (main.*color.bar).SetValue(component);
    if (ChosenColor(session).*color.component == component) continue;
    // The bar couldn't reach the value, and its handler has stored what it could reach.
    ChosenColor(session).*color.component = component;
    RelabelChosenRow(session);
  }
}

void StoreComponent(Session& session, const ColorBar& changed) {
  FrmMain& main = session.main;
  const int value = (main.*changed.bar).Value();
  main.picFarbe.Fill(main.HScroll1.Value(), main.HScroll2.Value(), main.HScroll3.Value());
  (main.*changed.valueLabel).SetCaption(std::to_string(value));
  if (NothingToStoreIn(main.lstColors)) return;
  ChosenColor(session).*changed.component = Checked16(value);
  session.vars.IsSaved = false;
  RelabelChosenRow(session);
}

void StoreColorName(Session& session) {
  if (NothingToStoreIn(session.main.lstColors)) return;
  ChosenColor(session).ColorName = session.main.txtColorName.Text();
  session.vars.IsSaved = false;
  RelabelChosenRow(session);
}

void AddColor(Session& session) {
  Guarded(session, [&] {
    Table<ColorEntry>& colors = session.vars.Colors;
    ListBox& list = session.main.lstColors;
    const std::int16_t upper = Checked16(colors.UpperBound() + 1);
    colors.ExtendTo(upper);
    ColorEntry& color = colors.At(upper);
    color.Index = Checked16(list.Count());
    color.ColorName = "Color" + std::to_string(upper);
    color.Red = 0;
    color.Green = 128;
    color.Blue = 255;
    list.AddRow(PaletteLabel(color));
    list.Choose(list.Count() - 1);
    session.vars.IsSaved = false;
    session.desktop.ShowInformation(Message(session, kColorWasAdded));
  });
}

void DeleteColor(Session& session) {
  Guarded(session, [&] {
    ListBox& list = session.main.lstColors;
    if (NothingToStoreIn(list)) return;
    if (!session.desktop.AskQuestion(Message(session, kRemoveColor))) return;
    ReferToFirstColor(session.vars.CarColors, ChosenColor(session).Index);
    ChosenColor(session).Index = kDeletedIndex;
    session.vars.Colors = WithoutDeleted(session.vars.Colors);
    list.RemoveRow(list.Row());
    if (list.Count() > 0) list.Choose(0);
    session.vars.IsSaved = false;
  });
}

}  // namespace wheelwright
