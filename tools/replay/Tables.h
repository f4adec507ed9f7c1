// The tables of a session, record by record.
#pragma once

#include "core/Vars.h"
#include "replay/Json.h"

#include <string>

namespace wheelwright::replay {

// The records of the table of that name, null for an unallocated table. Throws ScriptError if there
// is no such table.
Json RecordsOf(const Vars& vars, const std::string& table);

}  // namespace wheelwright::replay
