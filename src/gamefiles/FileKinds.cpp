#include "gamefiles/FileKinds.h"

#include "core/Text.h"
#include "formats/ColorFile.h"
#include "formats/DefinitionFile.h"
#include "formats/HandlingFile.h"
#include "gamefiles/LoadProblems.h"
#include "gamefiles/PaletteLabel.h"

#include <utility>
#include <vector>

namespace wheelwright {
namespace {

template <auto kTable, auto kSnapshot>
void Copy(Vars& vars, Snapshots way) {
  if (way == Snapshots::Take) {
    vars.*kSnapshot = vars.*kTable;
  } else {
    vars.*kTable = vars.*kSnapshot;
  }
}

template <auto kTable, auto kKey>
void ListKeys(Session& session) {
  std::vector<std::string> keys;
  for (const auto& record : (session.vars.*kTable).Walk()) keys.push_back(record.*kKey);
  session.main.cmbAutos.AddRows(std::move(keys));
}

void ListColors(ListBox& list, const Table<ColorEntry>& colors, int count) {
  std::vector<std::string> labels;
  labels.reserve(static_cast<std::size_t>(count));
  for (int index = 0; index < count; ++index) labels.push_back(PaletteLabel(colors.At(index)));
  list.Clear();
  list.AddRows(std::move(labels));
}

std::string WithLastLineEnd(std::string text) {
  text += kLineEnd;
  return text;
}

// The handling file

void TakeHandling(Session& session, HandlingFile& file) {
  session.main.txtAuthor.SetText(std::move(file.author));
  session.main.txtDate.SetText(std::move(file.created));
  session.main.cmbAutos.AddRows(std::move(file.names));
  session.vars.Kopie_Cars = std::move(file.cars);
  session.error.lstErrors.Clear();
  // The rows of the names are gone again, the window stays.
  if (file.hasOddNames) session.error.SetVisible(true);
  AddLoadProblems(session, file.problems);
}

std::optional<int> LoadHandling(Session& session, std::string_view text) {
  HandlingFile file;
  ReadAndTake([&] { ReadHandling(text, file); }, [&] { TakeHandling(session, file); });
  session.vars.Cars = session.vars.Kopie_Cars;
  return std::nullopt;
}

std::string RewrittenHandling(Session& session, const std::string& /*target*/) {
  const FrmMain& main = session.main;
  return WithLastLineEnd(
      WriteHandling(session.files.Read(session.vars.CurrentFile), {.names = main.cmbAutos.Rows(),
                                                                   .cars = session.vars.Cars,
                                                                   .author = main.txtAuthor.Text(),
                                                                   .created = main.txtDate.Text()}));
}

// The definition file

std::optional<int> LoadDefinitions(Session& session, std::string_view text) {
  DefinitionFile file;
  ReadAndTake([&] { ReadDefinitions(text, file); },
              [&] { session.vars.Kopie_Ides = std::move(file.records); });
  if (file.damagedLine) return file.damagedLine;
  session.main.cmbAutos.AddRows(std::move(file.names));
  session.vars.Ides = session.vars.Kopie_Ides;
  return std::nullopt;
}

std::string RewrittenDefinitions(Session& session, const std::string& /*target*/) {
  return WithLastLineEnd(WriteDefinitions(session.files.Read(session.vars.CurrentFile), session.vars.Ides));
}

// The colour file

void CopyColors(Vars& vars, Snapshots way) {
  Copy<&Vars::Colors, &Vars::Kopie_Colors>(vars, way);
  Copy<&Vars::CarColors, &Vars::Kopie_CarColors>(vars, way);
}

void LoadPalette(Session& session, std::string_view text) {
  PaletteSection palette;
  ReadAndTake([&] { ReadPalette(text, palette); },
              [&] {
                ListColors(session.main.lstColors, palette.colors, palette.count);
                session.vars.Kopie_Colors = std::move(palette.colors);
              });
  session.vars.Colors = session.vars.Kopie_Colors;
}

std::optional<int> LoadColors(Session& session, std::string_view text) {
  LoadPalette(session, text);
  PairsSection pairs;
  ReadAndTake([&] { ReadPairs(text, pairs); },
              [&] { session.vars.Kopie_CarColors = std::move(pairs.records); });
  if (pairs.damagedLine) return pairs.damagedLine;
  session.main.cmbAutos.AddRows(std::move(pairs.names));
  FillColorPickLists(session.main);
  session.vars.CarColors = session.vars.Kopie_CarColors;
  return std::nullopt;
}

// The palette goes into the open file first, whatever file the whole is saved to. Both texts are
// made before, and a second one without room doesn't leave the open file with the first.
std::string RewrittenColors(Session& session, const std::string& target) {
  const Vars& vars = session.vars;
  const std::string palette =
      WithLastLineEnd(WritePalette(session.files.Read(vars.CurrentFile), vars.Colors));
  std::string text = WithLastLineEnd(WritePairs(palette, vars.CarColors));
  session.files.CheckRoom(target, text);
  session.files.Write(vars.CurrentFile, palette);
  return text;
}

void ListPaletteAndPairs(Session& session) {
  FrmMain& main = session.main;
  ListColors(main.lstColors, session.vars.Colors, session.vars.Colors.Count());
  ListKeys<&Vars::CarColors, &CarColorEntry::ModelName>(session);
  main.cmbColor1.Clear();
  main.cmbColor2.Clear();
  FillColorPickLists(main);
}

std::string LabelOf(const Session& session, const FileKind& kind) {
  return Message(session, kind.name) + " (*." + kind.ending + ")";
}

}  // namespace

const std::array<FileKind, 3> kFileKinds = {{
    {.type = kHandlingFile,
     .filterIndex = 1,
     .ending = "cfg",
     .name = kHandlingFiles,
     .hasAuthor = true,
     .hasSaveFilter = true,
     .tabs = &FrmMain::SSTab1,
     .load = LoadHandling,
     .rewritten = RewrittenHandling,
     .copy = Copy<&Vars::Cars, &Vars::Kopie_Cars>,
     .fillLists = ListKeys<&Vars::Cars, &Car::CarName>},
    {.type = kDefinitionFile,
     .filterIndex = 2,
     .ending = "ide",
     .name = kDefinitionFiles,
     .hasAuthor = false,
     .hasSaveFilter = true,
     .tabs = &FrmMain::SSTab2,
     .load = LoadDefinitions,
     .rewritten = RewrittenDefinitions,
     .copy = Copy<&Vars::Ides, &Vars::Kopie_Ides>,
     .fillLists = ListKeys<&Vars::Ides, &IdeEntry::HandlingID>},
    {.type = kColorFile,
     .filterIndex = 3,
     .ending = "dat",
     .name = kColorFiles,
     .hasAuthor = false,
     .hasSaveFilter = false,
     .tabs = &FrmMain::SSTab3,
     .load = LoadColors,
     .rewritten = RewrittenColors,
     .copy = CopyColors,
     .fillLists = ListPaletteAndPairs},
}};

const FileKind& KindOfOpenFile(const Vars& vars) {
  return kFileKinds.at(static_cast<std::size_t>(vars.CurrentFileType));
}

const FileKind* KindOfFile(const std::string& name, int filterIndex) {
  for (const FileKind& kind : kFileKinds) {
    const bool ends = name.ends_with(kind.ending) || name.ends_with(kind.ending + kBackupEnding);
    if (ends && filterIndex == kind.filterIndex) return &kind;
  }
  return nullptr;
}

std::string FilterOfAllKinds(const Session& session) {
  std::string filter;
  for (const FileKind& kind : kFileKinds) {
    filter += LabelOf(session, kind) + "|*." + kind.ending + ";*." + kind.ending + kBackupEnding + "|";
  }
  return filter;
}

std::string FilterOfKind(const Session& session, const FileKind& kind) {
  return LabelOf(session, kind) + "|*." + kind.ending + "|";
}

void FillColorPickLists(FrmMain& main) {
  main.cmbColor1.AddRows(main.lstColors.Rows());
  main.cmbColor2.AddRows(main.lstColors.Rows());
  main.cmbColor1.Choose(0);
  main.cmbColor2.Choose(0);
}

}  // namespace wheelwright
