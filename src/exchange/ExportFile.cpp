#include "exchange/ExportFile.h"

#include "core/Text.h"
#include "exchange/ExportWindow.h"
#include "gamefiles/Banner.h"
#include "gamefiles/FileKinds.h"
#include "gamefiles/VehicleLine.h"
#include "screen/Guarded.h"

#include <string>
#include <string_view>

namespace wheelwright {
namespace {

void AddLine(std::string& out, std::string_view line) { out.append(line).append(kLineEnd); }

// A dialog of its own, which keeps nothing from use to use.
std::string ChooseTarget(Session& session) {
  FileDialog dialog;
  dialog.filter = FilterOfKind(session, kFileKinds[kHandlingFile]);
  dialog.flags = FileDialog::kOverwritePrompt;
  session.desktop.ShowSave(dialog);
  return dialog.file;
}

std::string ExportHeader(const FrmMain& main) {
  std::string header;
  AddLine(header, BannerLine(';'));
  AddLine(header, HomePageLine(';'));
  AddLine(header, "; Author: " + main.txtAuthor.Text());
  AddLine(header, "; Created " + main.txtDate.Text());
  for (const std::string_view line :
       {";", "; > COMMENTS <", "; ------------", "; TWEAK AT YOUR OWN RISK", ";", "; > THE DATA <",
        "; ------------", ";"}) {
    AddLine(header, line);
  }
  return header;
}

// The records of the right list's rows, in the order of the rows. A row whose vehicle has gone has
// none.
template <class Visit>
void ForEachChosenVehicle(const Session& session, const Visit& visit) {
  const Table<Car>& cars = session.vars.Cars;
  int row = 0;
  for (const std::string& name : session.exporter.lst2.Rows()) {
    for (int i = cars.First(&Car::CarName, name); i != cars.kNone; i = cars.Next(i)) {
      visit(row, cars.At(i));
    }
    ++row;
  }
}

// Writes the text with what is added to it. A failure among the vehicles leaves the file with what
// stands before it.
template <class Add>
void WriteWithVehicles(Session& session, const std::string& target, std::string text,
                       const Add& add) {
  try {
    add(text);
  } catch (...) {
    session.files.Write(target, text);
    throw;
  }
  session.files.Write(target, text);
}

void AppendTuningBlock(std::string& out, int row, const Car& car) {
  const std::string record = "Kopie_Cars(" + std::to_string(row) + ").";
  const auto assign = [&](const char* field, const std::string& value) {
    AddLine(out, record + field + " = \"" + value + "\"");
  };
  AddLine(out, "'" + car.CarName);
  assign("CarName", car.CarName);
  assign("SuspensionForceLevel", car.SuspensionForceLevel);
  assign("SuspensionDampingLevel", car.SuspensionDampingLevel);
  assign("suspension_upper_limit", car.suspension_upper_limit);
  assign("suspension_lower_limit", car.suspension_lower_limit);
  AddLine(out, record + "IsSportCar = False");
  AddLine(out, "");
  AddLine(out, "");
}

}  // namespace

void ExportVehicles(Session& session) {
  if (session.exporter.lst2.Count() == 0) return;
  Guarded(session, [&] {
    const std::string target = ChooseTarget(session);
    WriteWithVehicles(session, target, ExportHeader(session.main), [&](std::string& text) {
      ForEachChosenVehicle(session, [&](int /*row*/, const Car& car) {
        AppendVehicleLine(text, car);
        text += kLineEnd;
      });
      AddLine(text, ";");
      AddLine(text, ";the end");
    });
    session.desktop.ShowInformation(Message(session, 113));
    UnloadExportWindow(session);
  });
}

void WriteTuningList(Session& session) {
  if (session.exporter.lst2.Count() == 0) return;
  const std::string target = ChooseTarget(session);
  WriteWithVehicles(session, target, "", [&](std::string& text) {
    ForEachChosenVehicle(session,
                         [&](int row, const Car& car) { AppendTuningBlock(text, row, car); });
  });
}

}  // namespace wheelwright
