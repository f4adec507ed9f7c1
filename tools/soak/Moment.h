// A step with what was before and after it, for the laws to look at.
#pragma once

#include "oracle/HandlingReference.h"
#include "oracle/Law.h"
#include "screen/Session.h"
#include "soak/Folder.h"
#include "soak/SessionState.h"
#include "soak/Step.h"
#include "soak/StepResult.h"

#include <cstddef>
#include <string>

namespace wheelwright::soak {

using testing::Require;

inline constexpr std::size_t kFlagDigits = 7;

// Of which tables the screen shows a record, so that boxes and fields must agree.
struct Shown {
  bool handling = false;
  bool flags = false;  // of a vehicle with as many digits as the boxes have
  bool definition = false;
  bool palette = false;
};

// What a handling file holds, and its problems in the captions from before it is opened.
struct ExpectedHandling {
  testing::PlainHandling read;
  std::vector<ReportList::Row> rows;
};

struct Moment {
  const Step& step;
  const StepResult& result;
  const SessionState& before;
  const SessionState& after;
  const Session& session;
  const Folder& folder;
};

// After a click on cmdOpen that was not declined. `handling` is what the plain reader makes of the
// chosen file, null if it is no handling file that is there.
void CheckOpen(const Moment& moment, const ExpectedHandling* handling);

void CheckSave(const Moment& moment);
void CheckBackup(const Moment& moment);

// A choice in cmbAutos, or whatever else displays a vehicle: the working tables must be those given
// but for what a display itself changes.
void CheckDisplay(const Moment& moment, Tables expected);

// What a display itself does to the record that it shows.
void Display(Car& car);

void CheckRevert(const Moment& moment);
void CheckAddedVehicle(const Moment& moment);
void CheckDeletedVehicle(const Moment& moment);

void CheckImport(const Moment& moment);
void CheckExport(const Moment& moment);

void CheckBoxesAndFields(const Session& session, const Shown& shown);

}  // namespace wheelwright::soak
