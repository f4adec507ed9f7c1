#include "gamefiles/HandlingWriter.h"

#include "core/Text.h"
#include "gamefiles/Banner.h"
#include "gamefiles/HandlingHead.h"
#include "gamefiles/Lines.h"
#include "gamefiles/VehicleLine.h"

#include <string_view>
#include <utility>

namespace wheelwright {
namespace {

class HandlingWriter {
 public:
  HandlingWriter(const Session& session, std::size_t expectedLength) : session_(session) {
    out_.reserve(expectedLength);
    AddLine(BannerLine(';'));
    AddLine(HomePageLine(';'));
  }

  void Take(std::string_view line) {
    const std::string_view head = HeadOf(line);
    const std::size_t comment = head.find(';');
    const bool special = head.find_first_of("%!$") != std::string_view::npos;
    if (special) {
      AddLine(line);
    } else if (comment == std::string_view::npos) {
      TakeVehicleLine();
    } else {
      TakeComment(line, comment);
    }
  }

  std::string Text() && {
    if (!HoldsIgnoringCase(out_, ";the end")) {
      AddLine(";");
      out_ += ";the end";
    }
    return std::move(out_);
  }

 private:
  void AddLine(std::string_view line) { out_.append(line).append(kLineEnd); }

  // All vehicles take the place of the first such line, empty or not; the others go.
  void TakeVehicleLine() {
    if (vehiclesWritten_) return;
    vehiclesWritten_ = true;
    if (session_.main.cmbAutos.Count() == 0) return;
    const Table<Car>& cars = session_.vars.Cars;
    for (const std::string& name : session_.main.cmbAutos.Rows()) {
      for (int i = cars.First(&Car::CarName, name); i != cars.kNone; i = cars.Next(i)) {
        AppendVehicleLine(out_, cars.At(i));
        out_ += kLineEnd;
      }
    }
  }

  void TakeComment(std::string_view line, std::size_t comment) {
    if (HoldsIgnoringCase(line, "author:", comment)) {
      AddLine("; Author: " + session_.main.txtAuthor.Text());
    } else if (HoldsIgnoringCase(line, "; created", comment)) {
      AddLine("; Created " + session_.main.txtDate.Text());
    } else if (!HoldsIgnoringCase(line, banner_, comment) &&
               !HoldsIgnoringCase(line, homePage_, comment)) {
      AddLine(line);
    }
  }

  const Session& session_;
  const std::string banner_ = FoldedCase(BannerBeginning(';'));
  const std::string homePage_ = FoldedCase(HomePageLine(';'));
  std::string out_;
  bool vehiclesWritten_ = false;
};

}  // namespace

std::string RewriteHandlingText(Session& session) {
  const std::string onDisk = session.files.Read(session.vars.CurrentFile);
  HandlingWriter writer(session, onDisk.size() + onDisk.size() / 8);
  for (const std::string_view line : Lines(onDisk)) writer.Take(line);
  return std::move(writer).Text();
}

}  // namespace wheelwright
