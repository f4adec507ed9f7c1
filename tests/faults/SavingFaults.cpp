// Save: a failure passes and ends the program.
#include "faults/FaultMatrix.h"

namespace wheelwright::testing {

// clang-format off
const std::vector<FaultSection> kSavingFaults = {
    {"save a handling file", R"(
| - | none | information: E116 | BUS 7, VAN 8 / BUS 7, VAN 8 | saved | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | handling.cfg as of call 4 |
| 1 look for handling.cfg | missing | - | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | handling.cfg gone |
| 1 look for handling.cfg | directory | - | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | handling.cfg a directory |
| 1 look for handling.cfg | no access | - | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | - |
| 1 look for handling.cfg | changed | information: E116 | BUS 7, VAN 8 / BUS 7, VAN 8 | saved | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | handling.cfg as of call 4 over the changed file |
| 2 clear marks of handling.cfg | vanished | ends with 53 | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | handling.cfg gone |
| 2 clear marks of handling.cfg | directory | ends with 75 | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | handling.cfg a directory |
| 2 clear marks of handling.cfg | no access | ends with 75 | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | - |
| 2 clear marks of handling.cfg | changed | information: E116 | BUS 7, VAN 8 / BUS 7, VAN 8 | saved | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | handling.cfg as of call 4 over the changed file |
| 3 read handling.cfg | vanished | ends with 53 | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | handling.cfg gone |
| 3 read handling.cfg | directory | ends with 75 | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | handling.cfg a directory |
| 3 read handling.cfg | no access | ends with 75 | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | - |
| 3 read handling.cfg | device | ends with 57 | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | - |
| 3 read handling.cfg | changed | information: E116 | BUS 7, VAN 8 / BUS 7, VAN 8 | saved | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | handling.cfg as of call 4 over the changed file |
| 4 write handling.cfg | vanished, changed | information: E116 | BUS 7, VAN 8 / BUS 7, VAN 8 | saved | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | handling.cfg as of call 4 |
| 4 write handling.cfg | no folder | ends with 76 | BUS 7, VAN 8 / BUS 7, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | handling.cfg gone |
| 4 write handling.cfg | directory | ends with 75 | BUS 7, VAN 8 / BUS 7, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | handling.cfg a directory |
| 4 write handling.cfg | no access | ends with 75 | BUS 7, VAN 8 / BUS 7, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | - |
| 4 write handling.cfg | disk full | ends with 61 | BUS 7, VAN 8 / BUS 7, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | handling.cfg empty |
| 4 write handling.cfg | cut short | ends with 61 | BUS 7, VAN 8 / BUS 7, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | handling.cfg half of call 4 |
| 4 write handling.cfg | device | ends with 57 | BUS 7, VAN 8 / BUS 7, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | handling.cfg half of call 4 |
| 4 write handling.cfg | close | ends with 57 | BUS 7, VAN 8 / BUS 7, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | handling.cfg as of call 4 |
)"},
    {"save a definition file", R"(
| - | none | information: E116 | BUS coach, VAN van / BUS coach, VAN van | saved | default.ide | commands SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | - | default.ide as of call 4 |
| 1 look for default.ide | missing | - | BUS coach, VAN van / BUS bus, VAN van | pending | default.ide | commands SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | - | default.ide gone |
| 1 look for default.ide | directory | - | BUS coach, VAN van / BUS bus, VAN van | pending | default.ide | commands SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | - | default.ide a directory |
| 1 look for default.ide | no access | - | BUS coach, VAN van / BUS bus, VAN van | pending | default.ide | commands SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | - | - |
| 1 look for default.ide | changed | information: E116 | BUS coach, VAN van / BUS coach, VAN van | saved | default.ide | commands SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | - | default.ide as of call 4 over the changed file |
| 2 clear marks of default.ide | vanished | ends with 53 | BUS coach, VAN van / BUS bus, VAN van | pending | default.ide | commands SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | - | default.ide gone |
| 2 clear marks of default.ide | directory | ends with 75 | BUS coach, VAN van / BUS bus, VAN van | pending | default.ide | commands SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | - | default.ide a directory |
| 2 clear marks of default.ide | no access | ends with 75 | BUS coach, VAN van / BUS bus, VAN van | pending | default.ide | commands SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | - | - |
| 2 clear marks of default.ide | changed | information: E116 | BUS coach, VAN van / BUS coach, VAN van | saved | default.ide | commands SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | - | default.ide as of call 4 over the changed file |
| 3 read default.ide | vanished | ends with 53 | BUS coach, VAN van / BUS bus, VAN van | pending | default.ide | commands SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | - | default.ide gone |
| 3 read default.ide | directory | ends with 75 | BUS coach, VAN van / BUS bus, VAN van | pending | default.ide | commands SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | - | default.ide a directory |
| 3 read default.ide | no access | ends with 75 | BUS coach, VAN van / BUS bus, VAN van | pending | default.ide | commands SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | - | - |
| 3 read default.ide | device | ends with 57 | BUS coach, VAN van / BUS bus, VAN van | pending | default.ide | commands SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | - | - |
| 3 read default.ide | changed | information: E116 | BUS coach, VAN van / BUS coach, VAN van | saved | default.ide | commands SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | - | default.ide as of call 4 over the changed file |
| 4 write default.ide | vanished, changed | information: E116 | BUS coach, VAN van / BUS coach, VAN van | saved | default.ide | commands SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | - | default.ide as of call 4 |
| 4 write default.ide | no folder | ends with 76 | BUS coach, VAN van / BUS coach, VAN van | pending | default.ide | commands SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | - | default.ide gone |
| 4 write default.ide | directory | ends with 75 | BUS coach, VAN van / BUS coach, VAN van | pending | default.ide | commands SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | - | default.ide a directory |
| 4 write default.ide | no access | ends with 75 | BUS coach, VAN van / BUS coach, VAN van | pending | default.ide | commands SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | - | - |
| 4 write default.ide | disk full | ends with 61 | BUS coach, VAN van / BUS coach, VAN van | pending | default.ide | commands SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | - | default.ide empty |
| 4 write default.ide | cut short | ends with 61 | BUS coach, VAN van / BUS coach, VAN van | pending | default.ide | commands SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | - | default.ide half of call 4 |
| 4 write default.ide | device | ends with 57 | BUS coach, VAN van / BUS coach, VAN van | pending | default.ide | commands SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | - | default.ide half of call 4 |
| 4 write default.ide | close | ends with 57 | BUS coach, VAN van / BUS coach, VAN van | pending | default.ide | commands SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | - | default.ide as of call 4 |
)"},
    {"save a colour file", R"(
| - | none | information: E116 | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 99,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | saved | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat as of call 6 |
| 1 look for carcols.dat | missing | - | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat gone |
| 1 look for carcols.dat | directory | - | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat a directory |
| 1 look for carcols.dat | no access | - | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | - |
| 1 look for carcols.dat | changed | information: E116 | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 99,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | saved | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat as of call 6 over the changed file |
| 2 clear marks of carcols.dat | vanished | ends with 53 | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat gone |
| 2 clear marks of carcols.dat | directory | ends with 75 | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat a directory |
| 2 clear marks of carcols.dat | no access | ends with 75 | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | - |
| 2 clear marks of carcols.dat | changed | information: E116 | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 99,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | saved | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat as of call 6 over the changed file |
| 3 read carcols.dat | vanished | ends with 53 | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat gone |
| 3 read carcols.dat | directory | ends with 75 | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat a directory |
| 3 read carcols.dat | no access | ends with 75 | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | - |
| 3 read carcols.dat | device | ends with 57 | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | - |
| 3 read carcols.dat | changed | information: E116 | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 99,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | saved | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat as of call 6 over the changed file |
| 4 write carcols.dat | vanished, changed | information: E116 | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 99,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | saved | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat as of call 6 |
| 4 write carcols.dat | no folder | ends with 76 | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat gone |
| 4 write carcols.dat | directory | ends with 75 | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat a directory |
| 4 write carcols.dat | no access | ends with 75 | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | - |
| 4 write carcols.dat | disk full | ends with 61 | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat empty |
| 4 write carcols.dat | cut short | ends with 61 | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat half of call 4 |
| 4 write carcols.dat | device | ends with 57 | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat half of call 4 |
| 4 write carcols.dat | close | ends with 57 | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat as of call 4 |
| 5 read carcols.dat | vanished | ends with 53 | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat gone |
| 5 read carcols.dat | directory | ends with 75 | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat a directory |
| 5 read carcols.dat | no access | ends with 75 | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat as of call 4 |
| 5 read carcols.dat | device | ends with 57 | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat as of call 4 |
| 5 read carcols.dat | changed | information: E116 | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 99,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | saved | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat "# another\ncol\n5,5,5\t\t\t\t# 0 dust\nend\ncar\nbus, 0, 1\nend\n\n" |
| 6 write carcols.dat | vanished, changed | information: E116 | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 99,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | saved | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat as of call 6 |
| 6 write carcols.dat | no folder | ends with 76 | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 99,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat gone |
| 6 write carcols.dat | directory | ends with 75 | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 99,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat a directory |
| 6 write carcols.dat | no access | ends with 75 | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 99,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat as of call 4 |
| 6 write carcols.dat | disk full | ends with 61 | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 99,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat empty |
| 6 write carcols.dat | cut short | ends with 61 | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 99,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat half of call 6 |
| 6 write carcols.dat | device | ends with 57 | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 99,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat half of call 6 |
| 6 write carcols.dat | close | ends with 57 | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 99,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat as of call 6 |
)"},
};
// clang-format on

}  // namespace wheelwright::testing
