// Backup, revert, display, export, import and help.
#include "faults/FaultMatrix.h"

namespace wheelwright::testing {

// clang-format off
const std::vector<FaultSection> kOtherFaults = {
    {"back up", R"(
| - | none | yesno: E061, information: E060 /game/handling.cfg.backup | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | handling.cfg.backup as of call 3 |
| 1 look for handling.cfg.backup | missing, no access | information: E060 /game/handling.cfg.backup | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | handling.cfg.backup as of call 3 |
| 1 look for handling.cfg.backup | directory | error: Error: 75 - Path/File access error | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | handling.cfg.backup a directory |
| 1 look for handling.cfg.backup | changed | yesno: E061, information: E060 /game/handling.cfg.backup | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | handling.cfg.backup as of call 3 |
| 2 read handling.cfg | missing | yesno: E061, error: Error: 53 - File not found | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | handling.cfg gone |
| 2 read handling.cfg | directory | yesno: E061, error: Error: 75 - Path/File access error | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | handling.cfg a directory |
| 2 read handling.cfg | no access | yesno: E061, error: Error: 75 - Path/File access error | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | - |
| 2 read handling.cfg | device | yesno: E061, error: Error: 57 - Device I/O error | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | - |
| 2 read handling.cfg | changed | yesno: E061, information: E060 /game/handling.cfg.backup | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | handling.cfg as changed; handling.cfg.backup as of call 3 over the changed file |
| 3 write handling.cfg.backup | vanished, changed | yesno: E061, information: E060 /game/handling.cfg.backup | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | handling.cfg.backup as of call 3 |
| 3 write handling.cfg.backup | no folder | yesno: E061, error: Error: 76 - Path not found | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | handling.cfg.backup gone |
| 3 write handling.cfg.backup | directory | yesno: E061, error: Error: 75 - Path/File access error | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | handling.cfg.backup a directory |
| 3 write handling.cfg.backup | no access | yesno: E061, error: Error: 75 - Path/File access error | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | - |
| 3 write handling.cfg.backup | disk full | yesno: E061, error: Error: 61 - Disk full | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | handling.cfg.backup empty |
| 3 write handling.cfg.backup | cut short | yesno: E061, error: Error: 61 - Disk full | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | handling.cfg.backup half of call 3 |
| 3 write handling.cfg.backup | device | yesno: E061, error: Error: 57 - Device I/O error | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | handling.cfg.backup half of call 3 |
| 3 write handling.cfg.backup | close | yesno: E061, error: Error: 57 - Device I/O error | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | handling.cfg.backup as of call 3 |
)"},
    {"revert", R"(
| - | none | yesno: E098, information: E099 | BUS 8, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | - |
| 1 list gfx | missing | yesno: E098, information: E099 | BUS 8, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | - | E000 E001 | - | BUS.bmp gone; VAN.jpg gone; nopictureavailable.jpg gone |
| 1 list gfx | no access | yesno: E098, information: E099 | BUS 8, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | - | E000 E001 | - | - |
| 1 list gfx | device | yesno: E098, information: E099 | BUS 8, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | - |
| 2 picture BUS.bmp | missing | yesno: E098, information: E099 | BUS 8, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | - | E000 E001 | - | BUS.bmp gone |
| 2 picture BUS.bmp | directory | yesno: E098, information: E099 | BUS 8, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | - | E000 E001 | - | BUS.bmp a directory |
| 2 picture BUS.bmp | no access, device | yesno: E098, information: E099 | BUS 8, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | - | E000 E001 | - | - |
| 2 picture BUS.bmp | changed | yesno: E098, information: E099 | BUS 8, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 12 | E000 E001 | - | BUS.bmp as changed |
)"},
    {"show a vehicle", R"(
| - | none | - | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | - |
| 1 list gfx | missing | - | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | - | E000 E001 | - | BUS.bmp gone; VAN.jpg gone; nopictureavailable.jpg gone |
| 1 list gfx | no access | - | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | - | E000 E001 | - | - |
| 1 list gfx | device | - | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | - |
| 2 picture BUS.bmp | missing | - | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | - | E000 E001 | - | BUS.bmp gone |
| 2 picture BUS.bmp | directory | - | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | - | E000 E001 | - | BUS.bmp a directory |
| 2 picture BUS.bmp | no access, device | - | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | - | E000 E001 | - | - |
| 2 picture BUS.bmp | changed | - | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 12 | E000 E001 | - | BUS.bmp as changed |
)"},
    {"show a definition", R"(
| - | none | - | BUS coach, VAN van / BUS bus, VAN van | pending | default.ide | commands SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | - | - |
| 1 list gfx | missing | - | BUS coach, VAN van / BUS bus, VAN van | pending | default.ide | commands SSTab2 | BUS VAN | - | E000 E001 | - | BUS.bmp gone; VAN.jpg gone; nopictureavailable.jpg gone |
| 1 list gfx | no access | - | BUS coach, VAN van / BUS bus, VAN van | pending | default.ide | commands SSTab2 | BUS VAN | - | E000 E001 | - | - |
| 1 list gfx | device | - | BUS coach, VAN van / BUS bus, VAN van | pending | default.ide | commands SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | - | - |
| 2 picture BUS.bmp | missing | - | BUS coach, VAN van / BUS bus, VAN van | pending | default.ide | commands SSTab2 | BUS VAN | - | E000 E001 | - | BUS.bmp gone |
| 2 picture BUS.bmp | directory | - | BUS coach, VAN van / BUS bus, VAN van | pending | default.ide | commands SSTab2 | BUS VAN | - | E000 E001 | - | BUS.bmp a directory |
| 2 picture BUS.bmp | no access, device | - | BUS coach, VAN van / BUS bus, VAN van | pending | default.ide | commands SSTab2 | BUS VAN | - | E000 E001 | - | - |
| 2 picture BUS.bmp | changed | - | BUS coach, VAN van / BUS bus, VAN van | pending | default.ide | commands SSTab2 | BUS VAN | BUS.bmp 12 | E000 E001 | - | BUS.bmp as changed |
)"},
    {"delete a vehicle", R"(
| - | none | yesno: E091, information: E092 | BUS 7 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS | BUS.bmp 3 | E000 E001 | - | - |
| 1 list gfx | missing | yesno: E091, information: E092 | BUS 7 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS | - | E000 E001 | - | BUS.bmp gone; VAN.jpg gone; nopictureavailable.jpg gone |
| 1 list gfx | no access | yesno: E091, information: E092 | BUS 7 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS | - | E000 E001 | - | - |
| 1 list gfx | device | yesno: E091, information: E092 | BUS 7 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS | BUS.bmp 3 | E000 E001 | - | - |
| 2 picture BUS.bmp | missing | yesno: E091, information: E092 | BUS 7 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS | - | E000 E001 | - | BUS.bmp gone |
| 2 picture BUS.bmp | directory | yesno: E091, information: E092 | BUS 7 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS | - | E000 E001 | - | BUS.bmp a directory |
| 2 picture BUS.bmp | no access, device | yesno: E091, information: E092 | BUS 7 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS | - | E000 E001 | - | - |
| 2 picture BUS.bmp | changed | yesno: E091, information: E092 | BUS 7 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS | BUS.bmp 12 | E000 E001 | - | BUS.bmp as changed |
)"},
    {"export", R"(
| - | none | save, information: E113 | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy as of call 2 |
| 1 write copy | missing, changed | save, information: E113 | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy as of call 2 |
| 1 write copy | no folder | save, error: Error: 76 - Path not found | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy gone |
| 1 write copy | directory | save, error: Error: 75 - Path/File access error | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy a directory |
| 1 write copy | no access | save, error: Error: 75 - Path/File access error | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | - |
| 1 write copy | disk full | save, error: Error: 61 - Disk full | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy empty |
| 1 write copy | cut short | save, error: Error: 61 - Disk full | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy half of call 1 |
| 1 write copy | device | save, error: Error: 57 - Device I/O error | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy half of call 1 |
| 1 write copy | close | save, error: Error: 57 - Device I/O error | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy as of call 1 |
| 2 write copy | vanished, changed | save, information: E113 | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy as of call 2 |
| 2 write copy | no folder | save, error: Error: 76 - Path not found | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy gone |
| 2 write copy | directory | save, error: Error: 75 - Path/File access error | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy a directory |
| 2 write copy | no access | save, error: Error: 75 - Path/File access error | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy as of call 1 |
| 2 write copy | disk full | save, error: Error: 61 - Disk full | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy empty |
| 2 write copy | cut short | save, error: Error: 61 - Disk full | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy half of call 2 |
| 2 write copy | device | save, error: Error: 57 - Device I/O error | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy half of call 2 |
| 2 write copy | close | save, error: Error: 57 - Device I/O error | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy as of call 2 |
)"},
    {"write the tuning list", R"(
| - | none | save | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy as of call 2 |
| 1 write copy | missing, changed | save | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy as of call 2 |
| 1 write copy | no folder | save, ends with 76 | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy gone |
| 1 write copy | directory | save, ends with 75 | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy a directory |
| 1 write copy | no access | save, ends with 75 | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | - |
| 1 write copy | disk full, cut short | save, ends with 61 | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy empty |
| 1 write copy | device, close | save, ends with 57 | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy empty |
| 2 write copy | vanished, changed | save | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy as of call 2 |
| 2 write copy | no folder | save, ends with 76 | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy gone |
| 2 write copy | directory | save, ends with 75 | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy a directory |
| 2 write copy | no access | save, ends with 75 | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy empty |
| 2 write copy | disk full | save, ends with 61 | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy empty |
| 2 write copy | cut short | save, ends with 61 | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy half of call 2 |
| 2 write copy | device | save, ends with 57 | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy half of call 2 |
| 2 write copy | close | save, ends with 57 | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy as of call 2 |
)"},
    {"import", R"(
| - | none | open, hourglass, normal, information: E115 | BUS 8, VAN 8, AXO 2 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | AXO BUS VAN | nopictureavailable.jpg 7 | E000 E001 | - | - |
| 1 look for swap.cfg | missing | open, hourglass, normal, error: E012 | BUS 8, VAN 8 / BUS 8, VAN 8 | saved | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | swap.cfg gone |
| 1 look for swap.cfg | directory | open, hourglass, normal, error: E012 | BUS 8, VAN 8 / BUS 8, VAN 8 | saved | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | swap.cfg a directory |
| 1 look for swap.cfg | no access | open, hourglass, normal, error: E012 | BUS 8, VAN 8 / BUS 8, VAN 8 | saved | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | - |
| 1 look for swap.cfg | changed | open, hourglass, normal, information: E115 | BUS 8, VAN 8, AYO 3 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | AYO BUS VAN | nopictureavailable.jpg 7 | E000 E001 | - | swap.cfg as changed |
| 2 read swap.cfg | vanished | open, hourglass, normal, error: Error: 53 - File not found | BUS 8, VAN 8 / BUS 8, VAN 8 | saved | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | swap.cfg gone |
| 2 read swap.cfg | directory | open, hourglass, normal, error: Error: 75 - Path/File access error | BUS 8, VAN 8 / BUS 8, VAN 8 | saved | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | swap.cfg a directory |
| 2 read swap.cfg | no access | open, hourglass, normal, error: Error: 75 - Path/File access error | BUS 8, VAN 8 / BUS 8, VAN 8 | saved | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | - |
| 2 read swap.cfg | device | open, hourglass, normal, error: Error: 57 - Device I/O error | BUS 8, VAN 8 / BUS 8, VAN 8 | saved | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | - |
| 2 read swap.cfg | changed | open, hourglass, normal, information: E115 | BUS 8, VAN 8, AYO 3 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | AYO BUS VAN | nopictureavailable.jpg 7 | E000 E001 | - | swap.cfg as changed |
| 3 list gfx | missing | open, hourglass, normal, information: E115 | BUS 8, VAN 8, AXO 2 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | AXO BUS VAN | - | E000 E001 | - | BUS.bmp gone; VAN.jpg gone; nopictureavailable.jpg gone |
| 3 list gfx | no access, device | open, hourglass, normal, information: E115 | BUS 8, VAN 8, AXO 2 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | AXO BUS VAN | - | E000 E001 | - | - |
| 4 picture nopictureavailable.jpg | missing | open, hourglass, normal, information: E115 | BUS 8, VAN 8, AXO 2 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | AXO BUS VAN | - | E000 E001 | - | nopictureavailable.jpg gone |
| 4 picture nopictureavailable.jpg | directory | open, hourglass, normal, information: E115 | BUS 8, VAN 8, AXO 2 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | AXO BUS VAN | - | E000 E001 | - | nopictureavailable.jpg a directory |
| 4 picture nopictureavailable.jpg | no access, device | open, hourglass, normal, information: E115 | BUS 8, VAN 8, AXO 2 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | AXO BUS VAN | - | E000 E001 | - | - |
| 4 picture nopictureavailable.jpg | changed | open, hourglass, normal, information: E115 | BUS 8, VAN 8, AXO 2 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | AXO BUS VAN | nopictureavailable.jpg 13 | E000 E001 | - | nopictureavailable.jpg as changed |
)"},
    {"open the manual", R"(
| - | none | hourglass, shell: /app/Anleitung.htm, normal | - | saved | - | - | - | - | E000 E001 | - | - |
| 1 look for Anleitung.htm | missing | error: E121 | - | saved | - | - | - | - | E000 E001 | - | Anleitung.htm gone |
| 1 look for Anleitung.htm | directory | error: E121 | - | saved | - | - | - | - | E000 E001 | - | Anleitung.htm a directory |
| 1 look for Anleitung.htm | no access | error: E121 | - | saved | - | - | - | - | E000 E001 | - | - |
| 1 look for Anleitung.htm | changed | hourglass, shell: /app/Anleitung.htm, normal | - | saved | - | - | - | - | E000 E001 | - | Anleitung.htm as changed |
)"},
};
// clang-format on

}  // namespace wheelwright::testing
