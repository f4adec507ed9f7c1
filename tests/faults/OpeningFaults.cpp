// The start, the languages and the open command.
#include "faults/FaultMatrix.h"

namespace wheelwright::testing {

// clang-format off
const std::vector<FaultSection> kOpeningFaults = {
    {"start", R"(
| - | none | - | - | saved | - | - | - | - | E000 E001 | Path app; Version 1.0.0; Language Deutsch | - |
| 1 list app | missing | error: No language-file found! Please reinstall the application., end | - | saved | - | - | - | - | - - | Path app; Version 1.0.0 | Anleitung.htm gone; Deutsch.lng gone; English.lng gone; BUS.bmp gone; VAN.jpg gone; nopictureavailable.jpg gone |
| 1 list app | no access, device | error: No language-file found! Please reinstall the application., end | - | saved | - | - | - | - | - - | Path app; Version 1.0.0 | - |
| 2 look for Deutsch.lng | missing | - | - | saved | - | - | - | - | - - | Path app; Version 1.0.0; Language Deutsch | Deutsch.lng gone |
| 2 look for Deutsch.lng | directory | - | - | saved | - | - | - | - | - - | Path app; Version 1.0.0; Language Deutsch | Deutsch.lng a directory |
| 2 look for Deutsch.lng | no access | - | - | saved | - | - | - | - | E000 E001 | Path app; Version 1.0.0; Language Deutsch | - |
| 2 look for Deutsch.lng | changed | - | - | saved | - | - | - | - | short - | Path app; Version 1.0.0; Language Deutsch | Deutsch.lng as changed |
| 3 read Deutsch.lng | vanished | ends with 53 | - | saved | - | - | - | - | - - | Path app; Version 1.0.0 | Deutsch.lng gone |
| 3 read Deutsch.lng | directory | ends with 75 | - | saved | - | - | - | - | - - | Path app; Version 1.0.0 | Deutsch.lng a directory |
| 3 read Deutsch.lng | no access | ends with 75 | - | saved | - | - | - | - | - - | Path app; Version 1.0.0 | - |
| 3 read Deutsch.lng | device | ends with 57 | - | saved | - | - | - | - | - - | Path app; Version 1.0.0 | - |
| 3 read Deutsch.lng | changed | - | - | saved | - | - | - | - | short - | Path app; Version 1.0.0; Language Deutsch | Deutsch.lng as changed |
| 4 look for Deutsch.lng | vanished | - | - | saved | - | - | - | - | E000 E001 | Path app; Version 1.0.0; Language Deutsch | Deutsch.lng gone |
| 4 look for Deutsch.lng | directory | - | - | saved | - | - | - | - | E000 E001 | Path app; Version 1.0.0; Language Deutsch | Deutsch.lng a directory |
| 4 look for Deutsch.lng | no access | - | - | saved | - | - | - | - | E000 E001 | Path app; Version 1.0.0; Language Deutsch | - |
| 4 look for Deutsch.lng | changed | - | - | saved | - | - | - | - | short E001 | Path app; Version 1.0.0; Language Deutsch | Deutsch.lng as changed |
| 5 read Deutsch.lng | vanished | ends with 53 | - | saved | - | - | - | - | E000 E001 | Path app; Version 1.0.0; Language Deutsch | Deutsch.lng gone |
| 5 read Deutsch.lng | directory | ends with 75 | - | saved | - | - | - | - | E000 E001 | Path app; Version 1.0.0; Language Deutsch | Deutsch.lng a directory |
| 5 read Deutsch.lng | no access | ends with 75 | - | saved | - | - | - | - | E000 E001 | Path app; Version 1.0.0; Language Deutsch | - |
| 5 read Deutsch.lng | device | ends with 57 | - | saved | - | - | - | - | E000 E001 | Path app; Version 1.0.0; Language Deutsch | - |
| 5 read Deutsch.lng | changed | - | - | saved | - | - | - | - | short E001 | Path app; Version 1.0.0; Language Deutsch | Deutsch.lng as changed |
)"},
    {"choose a language", R"(
| - | none | - | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | F000 F001 | Language English | - |
| 1 look for English.lng | missing | - | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | Language English | English.lng gone |
| 1 look for English.lng | directory | - | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | Language English | English.lng a directory |
| 1 look for English.lng | no access | - | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | Language English | - |
| 1 look for English.lng | changed | - | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | short E001 | Language English | English.lng as changed |
| 2 read English.lng | vanished | ends with 53 | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | English.lng gone |
| 2 read English.lng | directory | ends with 75 | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | English.lng a directory |
| 2 read English.lng | no access | ends with 75 | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | - |
| 2 read English.lng | device | ends with 57 | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | - |
| 2 read English.lng | changed | - | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | short E001 | Language English | English.lng as changed |
| 3 list gfx | missing | - | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | - | F000 F001 | Language English | BUS.bmp gone; VAN.jpg gone; nopictureavailable.jpg gone |
| 3 list gfx | no access | - | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | - | F000 F001 | Language English | - |
| 3 list gfx | device | - | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | F000 F001 | Language English | - |
| 4 picture BUS.bmp | missing | - | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | - | F000 F001 | Language English | BUS.bmp gone |
| 4 picture BUS.bmp | directory | - | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | - | F000 F001 | Language English | BUS.bmp a directory |
| 4 picture BUS.bmp | no access, device | - | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | - | F000 F001 | Language English | - |
| 4 picture BUS.bmp | changed | - | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 12 | F000 F001 | Language English | BUS.bmp as changed |
)"},
    {"open a handling file", R"(
| - | none | question: E118, open, hourglass, normal | BUS 8, VAN 8 / BUS 8, VAN 8 | saved | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | OpenPath handling.cfg | handling.cfg as of call 4 |
| 1 look for old.cfg | missing | question: E118, open, hourglass, normal | BUS 8, VAN 8 / BUS 8, VAN 8 | saved | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | OpenPath handling.cfg | handling.cfg as of call 4; old.cfg gone |
| 1 look for old.cfg | directory | question: E118, open, hourglass, normal | BUS 8, VAN 8 / BUS 8, VAN 8 | saved | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | OpenPath handling.cfg | handling.cfg as of call 4; old.cfg a directory |
| 1 look for old.cfg | no access | question: E118, open, hourglass, normal | BUS 8, VAN 8 / BUS 8, VAN 8 | saved | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | OpenPath handling.cfg | handling.cfg as of call 4 |
| 1 look for old.cfg | changed | question: E118, open, hourglass, normal | BUS 8, VAN 8 / BUS 8, VAN 8 | saved | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | OpenPath handling.cfg | handling.cfg as of call 4; old.cfg as changed |
| 2 look for handling.cfg | missing | question: E118, open, hourglass, normal, error: E012 | OLD 7 / OLD 8 | pending | handling.cfg | commands SSTab1 | OLD | nopictureavailable.jpg 7 | E000 E001 | OpenPath handling.cfg | handling.cfg gone |
| 2 look for handling.cfg | directory | question: E118, open, hourglass, normal, error: E012 | OLD 7 / OLD 8 | pending | handling.cfg | commands SSTab1 | OLD | nopictureavailable.jpg 7 | E000 E001 | OpenPath handling.cfg | handling.cfg a directory |
| 2 look for handling.cfg | no access | question: E118, open, hourglass, normal, error: E012 | OLD 7 / OLD 8 | pending | handling.cfg | commands SSTab1 | OLD | nopictureavailable.jpg 7 | E000 E001 | OpenPath handling.cfg | - |
| 2 look for handling.cfg | changed | question: E118, open, hourglass, normal | CAB 9 / CAB 9 | saved | handling.cfg | commands SSTab1 | CAB | nopictureavailable.jpg 7 | E000 E001 | OpenPath handling.cfg | handling.cfg as changed |
| 3 read handling.cfg | vanished | question: E118, open, hourglass, normal, error: Error: 53 - File not found | OLD 7 / OLD 8 | saved | - | - | - | nopictureavailable.jpg 7 | E000 E001 | OpenPath handling.cfg | handling.cfg gone |
| 3 read handling.cfg | directory | question: E118, open, hourglass, normal, error: Error: 75 - Path/File access error | OLD 7 / OLD 8 | saved | - | - | - | nopictureavailable.jpg 7 | E000 E001 | OpenPath handling.cfg | handling.cfg a directory |
| 3 read handling.cfg | no access | question: E118, open, hourglass, normal, error: Error: 75 - Path/File access error | OLD 7 / OLD 8 | saved | - | - | - | nopictureavailable.jpg 7 | E000 E001 | OpenPath handling.cfg | - |
| 3 read handling.cfg | device | question: E118, open, hourglass, normal, error: Error: 57 - Device I/O error | OLD 7 / OLD 8 | saved | - | - | - | nopictureavailable.jpg 7 | E000 E001 | OpenPath handling.cfg | - |
| 3 read handling.cfg | changed | question: E118, open, hourglass, normal | CAB 9 / CAB 9 | saved | handling.cfg | commands SSTab1 | CAB | nopictureavailable.jpg 7 | E000 E001 | OpenPath handling.cfg | handling.cfg as changed |
| 4 write handling.cfg | vanished, changed | question: E118, open, hourglass, normal | BUS 8, VAN 8 / BUS 8, VAN 8 | saved | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | OpenPath handling.cfg | handling.cfg as of call 4 |
| 4 write handling.cfg | no folder | question: E118, open, hourglass, normal, error: Error: 76 - Path not found | OLD 7 / OLD 8 | saved | - | - | - | nopictureavailable.jpg 7 | E000 E001 | OpenPath handling.cfg | handling.cfg gone |
| 4 write handling.cfg | directory | question: E118, open, hourglass, normal, error: Error: 75 - Path/File access error | OLD 7 / OLD 8 | saved | - | - | - | nopictureavailable.jpg 7 | E000 E001 | OpenPath handling.cfg | handling.cfg a directory |
| 4 write handling.cfg | no access | question: E118, open, hourglass, normal, error: Error: 75 - Path/File access error | OLD 7 / OLD 8 | saved | - | - | - | nopictureavailable.jpg 7 | E000 E001 | OpenPath handling.cfg | - |
| 4 write handling.cfg | disk full | question: E118, open, hourglass, normal, error: Error: 61 - Disk full | OLD 7 / OLD 8 | saved | - | - | - | nopictureavailable.jpg 7 | E000 E001 | OpenPath handling.cfg | handling.cfg empty |
| 4 write handling.cfg | cut short | question: E118, open, hourglass, normal, error: Error: 61 - Disk full | OLD 7 / OLD 8 | saved | - | - | - | nopictureavailable.jpg 7 | E000 E001 | OpenPath handling.cfg | handling.cfg half of call 4 |
| 4 write handling.cfg | device | question: E118, open, hourglass, normal, error: Error: 57 - Device I/O error | OLD 7 / OLD 8 | saved | - | - | - | nopictureavailable.jpg 7 | E000 E001 | OpenPath handling.cfg | handling.cfg half of call 4 |
| 4 write handling.cfg | close | question: E118, open, hourglass, normal, error: Error: 57 - Device I/O error | OLD 7 / OLD 8 | saved | - | - | - | nopictureavailable.jpg 7 | E000 E001 | OpenPath handling.cfg | handling.cfg as of call 4 |
| 5 read handling.cfg | vanished | question: E118, open, hourglass, normal, error: Error: 53 - File not found | OLD 7 / OLD 8 | saved | - | - | - | nopictureavailable.jpg 7 | E000 E001 | OpenPath handling.cfg | handling.cfg gone |
| 5 read handling.cfg | directory | question: E118, open, hourglass, normal, error: Error: 75 - Path/File access error | OLD 7 / OLD 8 | saved | - | - | - | nopictureavailable.jpg 7 | E000 E001 | OpenPath handling.cfg | handling.cfg a directory |
| 5 read handling.cfg | no access | question: E118, open, hourglass, normal, error: Error: 75 - Path/File access error | OLD 7 / OLD 8 | saved | - | - | - | nopictureavailable.jpg 7 | E000 E001 | OpenPath handling.cfg | handling.cfg as of call 4 |
| 5 read handling.cfg | device | question: E118, open, hourglass, normal, error: Error: 57 - Device I/O error | OLD 7 / OLD 8 | saved | - | - | - | nopictureavailable.jpg 7 | E000 E001 | OpenPath handling.cfg | handling.cfg as of call 4 |
| 5 read handling.cfg | changed | question: E118, open, hourglass, normal | CAB 9 / CAB 9 | saved | handling.cfg | commands SSTab1 | CAB | nopictureavailable.jpg 7 | E000 E001 | OpenPath handling.cfg | handling.cfg as changed |
| 6 list gfx | missing | question: E118, open, hourglass, normal | BUS 8, VAN 8 / BUS 8, VAN 8 | saved | handling.cfg | commands SSTab1 | BUS VAN | - | E000 E001 | OpenPath handling.cfg | BUS.bmp gone; VAN.jpg gone; nopictureavailable.jpg gone; handling.cfg as of call 4 |
| 6 list gfx | no access | question: E118, open, hourglass, normal | BUS 8, VAN 8 / BUS 8, VAN 8 | saved | handling.cfg | commands SSTab1 | BUS VAN | - | E000 E001 | OpenPath handling.cfg | handling.cfg as of call 4 |
| 6 list gfx | device | question: E118, open, hourglass, normal | BUS 8, VAN 8 / BUS 8, VAN 8 | saved | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | OpenPath handling.cfg | handling.cfg as of call 4 |
| 7 picture BUS.bmp | missing | question: E118, open, hourglass, normal | BUS 8, VAN 8 / BUS 8, VAN 8 | saved | handling.cfg | commands SSTab1 | BUS VAN | - | E000 E001 | OpenPath handling.cfg | BUS.bmp gone; handling.cfg as of call 4 |
| 7 picture BUS.bmp | directory | question: E118, open, hourglass, normal | BUS 8, VAN 8 / BUS 8, VAN 8 | saved | handling.cfg | commands SSTab1 | BUS VAN | - | E000 E001 | OpenPath handling.cfg | BUS.bmp a directory; handling.cfg as of call 4 |
| 7 picture BUS.bmp | no access, device | question: E118, open, hourglass, normal | BUS 8, VAN 8 / BUS 8, VAN 8 | saved | handling.cfg | commands SSTab1 | BUS VAN | - | E000 E001 | OpenPath handling.cfg | handling.cfg as of call 4 |
| 7 picture BUS.bmp | changed | question: E118, open, hourglass, normal | BUS 8, VAN 8 / BUS 8, VAN 8 | saved | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 12 | E000 E001 | OpenPath handling.cfg | BUS.bmp as changed; handling.cfg as of call 4 |
)"},
    {"open a definition file", R"(
| - | none | question: E118, open, hourglass, normal | OLD 7 / OLD 8; BUS bus, VAN van / BUS bus, VAN van | saved | default.ide | commands SSTab1 SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | FileIndex 2; OpenPath default.ide | default.ide as of call 4 |
| 1 look for old.cfg | missing | question: E118, open, hourglass, normal | OLD 7 / OLD 8; BUS bus, VAN van / BUS bus, VAN van | saved | default.ide | commands SSTab1 SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | FileIndex 2; OpenPath default.ide | default.ide as of call 4; old.cfg gone |
| 1 look for old.cfg | directory | question: E118, open, hourglass, normal | OLD 7 / OLD 8; BUS bus, VAN van / BUS bus, VAN van | saved | default.ide | commands SSTab1 SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | FileIndex 2; OpenPath default.ide | default.ide as of call 4; old.cfg a directory |
| 1 look for old.cfg | no access | question: E118, open, hourglass, normal | OLD 7 / OLD 8; BUS bus, VAN van / BUS bus, VAN van | saved | default.ide | commands SSTab1 SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | FileIndex 2; OpenPath default.ide | default.ide as of call 4 |
| 1 look for old.cfg | changed | question: E118, open, hourglass, normal | OLD 7 / OLD 8; BUS bus, VAN van / BUS bus, VAN van | saved | default.ide | commands SSTab1 SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | FileIndex 2; OpenPath default.ide | default.ide as of call 4; old.cfg as changed |
| 2 look for default.ide | missing | question: E118, open, hourglass, normal, error: E012 | OLD 7 / OLD 8 | pending | default.ide | commands SSTab1 | OLD | nopictureavailable.jpg 7 | E000 E001 | FileIndex 2; OpenPath default.ide | default.ide gone |
| 2 look for default.ide | directory | question: E118, open, hourglass, normal, error: E012 | OLD 7 / OLD 8 | pending | default.ide | commands SSTab1 | OLD | nopictureavailable.jpg 7 | E000 E001 | FileIndex 2; OpenPath default.ide | default.ide a directory |
| 2 look for default.ide | no access | question: E118, open, hourglass, normal, error: E012 | OLD 7 / OLD 8 | pending | default.ide | commands SSTab1 | OLD | nopictureavailable.jpg 7 | E000 E001 | FileIndex 2; OpenPath default.ide | - |
| 2 look for default.ide | changed | question: E118, open, hourglass, normal | OLD 7 / OLD 8; CAB cab / CAB cab | saved | default.ide | commands SSTab1 SSTab2 | CAB | nopictureavailable.jpg 7 | E000 E001 | FileIndex 2; OpenPath default.ide | default.ide as changed |
| 3 read default.ide | vanished | question: E118, open, hourglass, normal, error: Error: 53 - File not found | OLD 7 / OLD 8 | saved | - | - | - | - | E000 E001 | FileIndex 2; OpenPath default.ide | default.ide gone |
| 3 read default.ide | directory | question: E118, open, hourglass, normal, error: Error: 75 - Path/File access error | OLD 7 / OLD 8 | saved | - | - | - | - | E000 E001 | FileIndex 2; OpenPath default.ide | default.ide a directory |
| 3 read default.ide | no access | question: E118, open, hourglass, normal, error: Error: 75 - Path/File access error | OLD 7 / OLD 8 | saved | - | - | - | - | E000 E001 | FileIndex 2; OpenPath default.ide | - |
| 3 read default.ide | device | question: E118, open, hourglass, normal, error: Error: 57 - Device I/O error | OLD 7 / OLD 8 | saved | - | - | - | - | E000 E001 | FileIndex 2; OpenPath default.ide | - |
| 3 read default.ide | changed | question: E118, open, hourglass, normal | OLD 7 / OLD 8; CAB cab / CAB cab | saved | default.ide | commands SSTab1 SSTab2 | CAB | nopictureavailable.jpg 7 | E000 E001 | FileIndex 2; OpenPath default.ide | default.ide as changed |
| 4 write default.ide | vanished, changed | question: E118, open, hourglass, normal | OLD 7 / OLD 8; BUS bus, VAN van / BUS bus, VAN van | saved | default.ide | commands SSTab1 SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | FileIndex 2; OpenPath default.ide | default.ide as of call 4 |
| 4 write default.ide | no folder | question: E118, open, hourglass, normal, error: Error: 76 - Path not found | OLD 7 / OLD 8 | saved | - | - | - | - | E000 E001 | FileIndex 2; OpenPath default.ide | default.ide gone |
| 4 write default.ide | directory | question: E118, open, hourglass, normal, error: Error: 75 - Path/File access error | OLD 7 / OLD 8 | saved | - | - | - | - | E000 E001 | FileIndex 2; OpenPath default.ide | default.ide a directory |
| 4 write default.ide | no access | question: E118, open, hourglass, normal, error: Error: 75 - Path/File access error | OLD 7 / OLD 8 | saved | - | - | - | - | E000 E001 | FileIndex 2; OpenPath default.ide | - |
| 4 write default.ide | disk full | question: E118, open, hourglass, normal, error: Error: 61 - Disk full | OLD 7 / OLD 8 | saved | - | - | - | - | E000 E001 | FileIndex 2; OpenPath default.ide | default.ide empty |
| 4 write default.ide | cut short | question: E118, open, hourglass, normal, error: Error: 61 - Disk full | OLD 7 / OLD 8 | saved | - | - | - | - | E000 E001 | FileIndex 2; OpenPath default.ide | default.ide half of call 4 |
| 4 write default.ide | device | question: E118, open, hourglass, normal, error: Error: 57 - Device I/O error | OLD 7 / OLD 8 | saved | - | - | - | - | E000 E001 | FileIndex 2; OpenPath default.ide | default.ide half of call 4 |
| 4 write default.ide | close | question: E118, open, hourglass, normal, error: Error: 57 - Device I/O error | OLD 7 / OLD 8 | saved | - | - | - | - | E000 E001 | FileIndex 2; OpenPath default.ide | default.ide as of call 4 |
| 5 read default.ide | vanished | question: E118, open, hourglass, normal, error: Error: 53 - File not found | OLD 7 / OLD 8 | saved | - | - | - | - | E000 E001 | FileIndex 2; OpenPath default.ide | default.ide gone |
| 5 read default.ide | directory | question: E118, open, hourglass, normal, error: Error: 75 - Path/File access error | OLD 7 / OLD 8 | saved | - | - | - | - | E000 E001 | FileIndex 2; OpenPath default.ide | default.ide a directory |
| 5 read default.ide | no access | question: E118, open, hourglass, normal, error: Error: 75 - Path/File access error | OLD 7 / OLD 8 | saved | - | - | - | - | E000 E001 | FileIndex 2; OpenPath default.ide | default.ide as of call 4 |
| 5 read default.ide | device | question: E118, open, hourglass, normal, error: Error: 57 - Device I/O error | OLD 7 / OLD 8 | saved | - | - | - | - | E000 E001 | FileIndex 2; OpenPath default.ide | default.ide as of call 4 |
| 5 read default.ide | changed | question: E118, open, hourglass, normal | OLD 7 / OLD 8; CAB cab / CAB cab | saved | default.ide | commands SSTab1 SSTab2 | CAB | nopictureavailable.jpg 7 | E000 E001 | FileIndex 2; OpenPath default.ide | default.ide as changed |
| 6 list gfx | missing | question: E118, open, hourglass, normal | OLD 7 / OLD 8; BUS bus, VAN van / BUS bus, VAN van | saved | default.ide | commands SSTab1 SSTab2 | BUS VAN | - | E000 E001 | FileIndex 2; OpenPath default.ide | BUS.bmp gone; VAN.jpg gone; nopictureavailable.jpg gone; default.ide as of call 4 |
| 6 list gfx | no access | question: E118, open, hourglass, normal | OLD 7 / OLD 8; BUS bus, VAN van / BUS bus, VAN van | saved | default.ide | commands SSTab1 SSTab2 | BUS VAN | - | E000 E001 | FileIndex 2; OpenPath default.ide | default.ide as of call 4 |
| 6 list gfx | device | question: E118, open, hourglass, normal | OLD 7 / OLD 8; BUS bus, VAN van / BUS bus, VAN van | saved | default.ide | commands SSTab1 SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | FileIndex 2; OpenPath default.ide | default.ide as of call 4 |
| 7 picture BUS.bmp | missing | question: E118, open, hourglass, normal | OLD 7 / OLD 8; BUS bus, VAN van / BUS bus, VAN van | saved | default.ide | commands SSTab1 SSTab2 | BUS VAN | - | E000 E001 | FileIndex 2; OpenPath default.ide | BUS.bmp gone; default.ide as of call 4 |
| 7 picture BUS.bmp | directory | question: E118, open, hourglass, normal | OLD 7 / OLD 8; BUS bus, VAN van / BUS bus, VAN van | saved | default.ide | commands SSTab1 SSTab2 | BUS VAN | - | E000 E001 | FileIndex 2; OpenPath default.ide | BUS.bmp a directory; default.ide as of call 4 |
| 7 picture BUS.bmp | no access, device | question: E118, open, hourglass, normal | OLD 7 / OLD 8; BUS bus, VAN van / BUS bus, VAN van | saved | default.ide | commands SSTab1 SSTab2 | BUS VAN | - | E000 E001 | FileIndex 2; OpenPath default.ide | default.ide as of call 4 |
| 7 picture BUS.bmp | changed | question: E118, open, hourglass, normal | OLD 7 / OLD 8; BUS bus, VAN van / BUS bus, VAN van | saved | default.ide | commands SSTab1 SSTab2 | BUS VAN | BUS.bmp 12 | E000 E001 | FileIndex 2; OpenPath default.ide | BUS.bmp as changed; default.ide as of call 4 |
)"},
    {"open a colour file", R"(
| - | none | question: E118, open, hourglass, normal | OLD 7 / OLD 8; 0: 0,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | saved | carcols.dat | commands SSTab1 SSTab3 | bus | nopictureavailable.jpg 7 | E000 E001 | FileIndex 3; OpenPath carcols.dat | carcols.dat as of call 4 |
| 1 look for old.cfg | missing | question: E118, open, hourglass, normal | OLD 7 / OLD 8; 0: 0,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | saved | carcols.dat | commands SSTab1 SSTab3 | bus | nopictureavailable.jpg 7 | E000 E001 | FileIndex 3; OpenPath carcols.dat | carcols.dat as of call 4; old.cfg gone |
| 1 look for old.cfg | directory | question: E118, open, hourglass, normal | OLD 7 / OLD 8; 0: 0,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | saved | carcols.dat | commands SSTab1 SSTab3 | bus | nopictureavailable.jpg 7 | E000 E001 | FileIndex 3; OpenPath carcols.dat | carcols.dat as of call 4; old.cfg a directory |
| 1 look for old.cfg | no access | question: E118, open, hourglass, normal | OLD 7 / OLD 8; 0: 0,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | saved | carcols.dat | commands SSTab1 SSTab3 | bus | nopictureavailable.jpg 7 | E000 E001 | FileIndex 3; OpenPath carcols.dat | carcols.dat as of call 4 |
| 1 look for old.cfg | changed | question: E118, open, hourglass, normal | OLD 7 / OLD 8; 0: 0,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | saved | carcols.dat | commands SSTab1 SSTab3 | bus | nopictureavailable.jpg 7 | E000 E001 | FileIndex 3; OpenPath carcols.dat | carcols.dat as of call 4; old.cfg as changed |
| 2 look for carcols.dat | missing | question: E118, open, hourglass, normal, error: E012 | OLD 7 / OLD 8 | pending | carcols.dat | commands SSTab1 | OLD | nopictureavailable.jpg 7 | E000 E001 | FileIndex 3; OpenPath carcols.dat | carcols.dat gone |
| 2 look for carcols.dat | directory | question: E118, open, hourglass, normal, error: E012 | OLD 7 / OLD 8 | pending | carcols.dat | commands SSTab1 | OLD | nopictureavailable.jpg 7 | E000 E001 | FileIndex 3; OpenPath carcols.dat | carcols.dat a directory |
| 2 look for carcols.dat | no access | question: E118, open, hourglass, normal, error: E012 | OLD 7 / OLD 8 | pending | carcols.dat | commands SSTab1 | OLD | nopictureavailable.jpg 7 | E000 E001 | FileIndex 3; OpenPath carcols.dat | - |
| 2 look for carcols.dat | changed | question: E118, open, hourglass, normal | OLD 7 / OLD 8; 0: 5,5,5 dust / 0: 5,5,5 dust; cab 0,0 / cab 0,0 | saved | carcols.dat | commands SSTab1 SSTab3 | cab | nopictureavailable.jpg 7 | E000 E001 | FileIndex 3; OpenPath carcols.dat | carcols.dat as changed |
| 3 read carcols.dat | vanished | question: E118, open, hourglass, normal, error: Error: 53 - File not found | OLD 7 / OLD 8 | saved | - | - | - | nopictureavailable.jpg 7 | E000 E001 | FileIndex 3; OpenPath carcols.dat | carcols.dat gone |
| 3 read carcols.dat | directory | question: E118, open, hourglass, normal, error: Error: 75 - Path/File access error | OLD 7 / OLD 8 | saved | - | - | - | nopictureavailable.jpg 7 | E000 E001 | FileIndex 3; OpenPath carcols.dat | carcols.dat a directory |
| 3 read carcols.dat | no access | question: E118, open, hourglass, normal, error: Error: 75 - Path/File access error | OLD 7 / OLD 8 | saved | - | - | - | nopictureavailable.jpg 7 | E000 E001 | FileIndex 3; OpenPath carcols.dat | - |
| 3 read carcols.dat | device | question: E118, open, hourglass, normal, error: Error: 57 - Device I/O error | OLD 7 / OLD 8 | saved | - | - | - | nopictureavailable.jpg 7 | E000 E001 | FileIndex 3; OpenPath carcols.dat | - |
| 3 read carcols.dat | changed | question: E118, open, hourglass, normal | OLD 7 / OLD 8; 0: 5,5,5 dust / 0: 5,5,5 dust; cab 0,0 / cab 0,0 | saved | carcols.dat | commands SSTab1 SSTab3 | cab | nopictureavailable.jpg 7 | E000 E001 | FileIndex 3; OpenPath carcols.dat | carcols.dat as changed |
| 4 write carcols.dat | vanished, changed | question: E118, open, hourglass, normal | OLD 7 / OLD 8; 0: 0,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | saved | carcols.dat | commands SSTab1 SSTab3 | bus | nopictureavailable.jpg 7 | E000 E001 | FileIndex 3; OpenPath carcols.dat | carcols.dat as of call 4 |
| 4 write carcols.dat | no folder | question: E118, open, hourglass, normal, error: Error: 76 - Path not found | OLD 7 / OLD 8 | saved | - | - | - | nopictureavailable.jpg 7 | E000 E001 | FileIndex 3; OpenPath carcols.dat | carcols.dat gone |
| 4 write carcols.dat | directory | question: E118, open, hourglass, normal, error: Error: 75 - Path/File access error | OLD 7 / OLD 8 | saved | - | - | - | nopictureavailable.jpg 7 | E000 E001 | FileIndex 3; OpenPath carcols.dat | carcols.dat a directory |
| 4 write carcols.dat | no access | question: E118, open, hourglass, normal, error: Error: 75 - Path/File access error | OLD 7 / OLD 8 | saved | - | - | - | nopictureavailable.jpg 7 | E000 E001 | FileIndex 3; OpenPath carcols.dat | - |
| 4 write carcols.dat | disk full | question: E118, open, hourglass, normal, error: Error: 61 - Disk full | OLD 7 / OLD 8 | saved | - | - | - | nopictureavailable.jpg 7 | E000 E001 | FileIndex 3; OpenPath carcols.dat | carcols.dat empty |
| 4 write carcols.dat | cut short | question: E118, open, hourglass, normal, error: Error: 61 - Disk full | OLD 7 / OLD 8 | saved | - | - | - | nopictureavailable.jpg 7 | E000 E001 | FileIndex 3; OpenPath carcols.dat | carcols.dat half of call 4 |
| 4 write carcols.dat | device | question: E118, open, hourglass, normal, error: Error: 57 - Device I/O error | OLD 7 / OLD 8 | saved | - | - | - | nopictureavailable.jpg 7 | E000 E001 | FileIndex 3; OpenPath carcols.dat | carcols.dat half of call 4 |
| 4 write carcols.dat | close | question: E118, open, hourglass, normal, error: Error: 57 - Device I/O error | OLD 7 / OLD 8 | saved | - | - | - | nopictureavailable.jpg 7 | E000 E001 | FileIndex 3; OpenPath carcols.dat | carcols.dat as of call 4 |
| 5 read carcols.dat | vanished | question: E118, open, hourglass, normal, error: Error: 53 - File not found | OLD 7 / OLD 8 | saved | - | - | - | nopictureavailable.jpg 7 | E000 E001 | FileIndex 3; OpenPath carcols.dat | carcols.dat gone |
| 5 read carcols.dat | directory | question: E118, open, hourglass, normal, error: Error: 75 - Path/File access error | OLD 7 / OLD 8 | saved | - | - | - | nopictureavailable.jpg 7 | E000 E001 | FileIndex 3; OpenPath carcols.dat | carcols.dat a directory |
| 5 read carcols.dat | no access | question: E118, open, hourglass, normal, error: Error: 75 - Path/File access error | OLD 7 / OLD 8 | saved | - | - | - | nopictureavailable.jpg 7 | E000 E001 | FileIndex 3; OpenPath carcols.dat | carcols.dat as of call 4 |
| 5 read carcols.dat | device | question: E118, open, hourglass, normal, error: Error: 57 - Device I/O error | OLD 7 / OLD 8 | saved | - | - | - | nopictureavailable.jpg 7 | E000 E001 | FileIndex 3; OpenPath carcols.dat | carcols.dat as of call 4 |
| 5 read carcols.dat | changed | question: E118, open, hourglass, normal | OLD 7 / OLD 8; 0: 5,5,5 dust / 0: 5,5,5 dust; cab 0,0 / cab 0,0 | saved | carcols.dat | commands SSTab1 SSTab3 | cab | nopictureavailable.jpg 7 | E000 E001 | FileIndex 3; OpenPath carcols.dat | carcols.dat as changed |
)"},
};
// clang-format on

}  // namespace wheelwright::testing
