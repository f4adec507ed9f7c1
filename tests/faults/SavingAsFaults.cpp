// Save As: a failure is shown and the session goes on.
#include "faults/FaultMatrix.h"

namespace wheelwright::testing {

// clang-format off
const std::vector<FaultSection> kSavingAsFaults = {
    {"save a handling file as", R"(
| - | none | save, information: E116 | BUS 7, VAN 8 / BUS 7, VAN 8 | saved | copy | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy as of call 4 |
| 1 look for handling.cfg | missing | save | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | handling.cfg gone |
| 1 look for handling.cfg | directory | save | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | handling.cfg a directory |
| 1 look for handling.cfg | no access | save | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | - |
| 1 look for handling.cfg | changed | save, information: E116 | BUS 7, VAN 8 / BUS 7, VAN 8 | saved | copy | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy as of call 4 over the changed file; handling.cfg as changed |
| 2 clear marks of handling.cfg | vanished | save, error: Error: 53 - File not found | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | handling.cfg gone |
| 2 clear marks of handling.cfg | directory | save, error: Error: 75 - Path/File access error | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | handling.cfg a directory |
| 2 clear marks of handling.cfg | no access | save, error: Error: 75 - Path/File access error | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | - |
| 2 clear marks of handling.cfg | changed | save, information: E116 | BUS 7, VAN 8 / BUS 7, VAN 8 | saved | copy | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy as of call 4 over the changed file; handling.cfg as changed |
| 3 read handling.cfg | vanished | save, error: Error: 53 - File not found | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | handling.cfg gone |
| 3 read handling.cfg | directory | save, error: Error: 75 - Path/File access error | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | handling.cfg a directory |
| 3 read handling.cfg | no access | save, error: Error: 75 - Path/File access error | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | - |
| 3 read handling.cfg | device | save, error: Error: 57 - Device I/O error | BUS 7, VAN 8 / BUS 8, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | - |
| 3 read handling.cfg | changed | save, information: E116 | BUS 7, VAN 8 / BUS 7, VAN 8 | saved | copy | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy as of call 4 over the changed file; handling.cfg as changed |
| 4 write copy | missing, changed | save, information: E116 | BUS 7, VAN 8 / BUS 7, VAN 8 | saved | copy | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy as of call 4 |
| 4 write copy | no folder | save, error: Error: 76 - Path not found | BUS 7, VAN 8 / BUS 7, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy gone |
| 4 write copy | directory | save, error: Error: 75 - Path/File access error | BUS 7, VAN 8 / BUS 7, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy a directory |
| 4 write copy | no access | save, error: Error: 75 - Path/File access error | BUS 7, VAN 8 / BUS 7, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | - |
| 4 write copy | disk full | save, error: Error: 61 - Disk full | BUS 7, VAN 8 / BUS 7, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy empty |
| 4 write copy | cut short | save, error: Error: 61 - Disk full | BUS 7, VAN 8 / BUS 7, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy half of call 4 |
| 4 write copy | device | save, error: Error: 57 - Device I/O error | BUS 7, VAN 8 / BUS 7, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy half of call 4 |
| 4 write copy | close | save, error: Error: 57 - Device I/O error | BUS 7, VAN 8 / BUS 7, VAN 8 | pending | handling.cfg | commands SSTab1 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy as of call 4 |
)"},
    {"save a definition file as", R"(
| - | none | save, information: E116 | BUS coach, VAN van / BUS coach, VAN van | saved | copy | commands SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy as of call 4 |
| 1 look for default.ide | missing | save | BUS coach, VAN van / BUS bus, VAN van | pending | default.ide | commands SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | - | default.ide gone |
| 1 look for default.ide | directory | save | BUS coach, VAN van / BUS bus, VAN van | pending | default.ide | commands SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | - | default.ide a directory |
| 1 look for default.ide | no access | save | BUS coach, VAN van / BUS bus, VAN van | pending | default.ide | commands SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | - | - |
| 1 look for default.ide | changed | save, information: E116 | BUS coach, VAN van / BUS coach, VAN van | saved | copy | commands SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy as of call 4 over the changed file; default.ide as changed |
| 2 clear marks of default.ide | vanished | save, error: Error: 53 - File not found | BUS coach, VAN van / BUS bus, VAN van | pending | default.ide | commands SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | - | default.ide gone |
| 2 clear marks of default.ide | directory | save, error: Error: 75 - Path/File access error | BUS coach, VAN van / BUS bus, VAN van | pending | default.ide | commands SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | - | default.ide a directory |
| 2 clear marks of default.ide | no access | save, error: Error: 75 - Path/File access error | BUS coach, VAN van / BUS bus, VAN van | pending | default.ide | commands SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | - | - |
| 2 clear marks of default.ide | changed | save, information: E116 | BUS coach, VAN van / BUS coach, VAN van | saved | copy | commands SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy as of call 4 over the changed file; default.ide as changed |
| 3 read default.ide | vanished | save, error: Error: 53 - File not found | BUS coach, VAN van / BUS bus, VAN van | pending | default.ide | commands SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | - | default.ide gone |
| 3 read default.ide | directory | save, error: Error: 75 - Path/File access error | BUS coach, VAN van / BUS bus, VAN van | pending | default.ide | commands SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | - | default.ide a directory |
| 3 read default.ide | no access | save, error: Error: 75 - Path/File access error | BUS coach, VAN van / BUS bus, VAN van | pending | default.ide | commands SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | - | - |
| 3 read default.ide | device | save, error: Error: 57 - Device I/O error | BUS coach, VAN van / BUS bus, VAN van | pending | default.ide | commands SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | - | - |
| 3 read default.ide | changed | save, information: E116 | BUS coach, VAN van / BUS coach, VAN van | saved | copy | commands SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy as of call 4 over the changed file; default.ide as changed |
| 4 write copy | missing, changed | save, information: E116 | BUS coach, VAN van / BUS coach, VAN van | saved | copy | commands SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy as of call 4 |
| 4 write copy | no folder | save, error: Error: 76 - Path not found | BUS coach, VAN van / BUS coach, VAN van | pending | default.ide | commands SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy gone |
| 4 write copy | directory | save, error: Error: 75 - Path/File access error | BUS coach, VAN van / BUS coach, VAN van | pending | default.ide | commands SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy a directory |
| 4 write copy | no access | save, error: Error: 75 - Path/File access error | BUS coach, VAN van / BUS coach, VAN van | pending | default.ide | commands SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | - | - |
| 4 write copy | disk full | save, error: Error: 61 - Disk full | BUS coach, VAN van / BUS coach, VAN van | pending | default.ide | commands SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy empty |
| 4 write copy | cut short | save, error: Error: 61 - Disk full | BUS coach, VAN van / BUS coach, VAN van | pending | default.ide | commands SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy half of call 4 |
| 4 write copy | device | save, error: Error: 57 - Device I/O error | BUS coach, VAN van / BUS coach, VAN van | pending | default.ide | commands SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy half of call 4 |
| 4 write copy | close | save, error: Error: 57 - Device I/O error | BUS coach, VAN van / BUS coach, VAN van | pending | default.ide | commands SSTab2 | BUS VAN | BUS.bmp 3 | E000 E001 | - | copy as of call 4 |
)"},
    {"save a colour file as", R"(
| - | none | save, information: E116 | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 99,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | saved | copy | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat as of call 4; copy as of call 6 |
| 1 look for carcols.dat | missing | save | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat gone |
| 1 look for carcols.dat | directory | save | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat a directory |
| 1 look for carcols.dat | no access | save | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | - |
| 1 look for carcols.dat | changed | save, information: E116 | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 99,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | saved | copy | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat as of call 4 over the changed file; copy as of call 6 over the changed file |
| 2 clear marks of carcols.dat | vanished | save, error: Error: 53 - File not found | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat gone |
| 2 clear marks of carcols.dat | directory | save, error: Error: 75 - Path/File access error | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat a directory |
| 2 clear marks of carcols.dat | no access | save, error: Error: 75 - Path/File access error | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | - |
| 2 clear marks of carcols.dat | changed | save, information: E116 | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 99,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | saved | copy | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat as of call 4 over the changed file; copy as of call 6 over the changed file |
| 3 read carcols.dat | vanished | save, error: Error: 53 - File not found | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat gone |
| 3 read carcols.dat | directory | save, error: Error: 75 - Path/File access error | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat a directory |
| 3 read carcols.dat | no access | save, error: Error: 75 - Path/File access error | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | - |
| 3 read carcols.dat | device | save, error: Error: 57 - Device I/O error | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | - |
| 3 read carcols.dat | changed | save, information: E116 | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 99,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | saved | copy | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat as of call 4 over the changed file; copy as of call 6 over the changed file |
| 4 write carcols.dat | vanished, changed | save, information: E116 | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 99,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | saved | copy | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat as of call 4; copy as of call 6 |
| 4 write carcols.dat | no folder | save, error: Error: 76 - Path not found | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat gone |
| 4 write carcols.dat | directory | save, error: Error: 75 - Path/File access error | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat a directory |
| 4 write carcols.dat | no access | save, error: Error: 75 - Path/File access error | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | - |
| 4 write carcols.dat | disk full | save, error: Error: 61 - Disk full | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat empty |
| 4 write carcols.dat | cut short | save, error: Error: 61 - Disk full | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat half of call 4 |
| 4 write carcols.dat | device | save, error: Error: 57 - Device I/O error | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat half of call 4 |
| 4 write carcols.dat | close | save, error: Error: 57 - Device I/O error | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat as of call 4 |
| 5 read carcols.dat | vanished | save, error: Error: 53 - File not found | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat gone |
| 5 read carcols.dat | directory | save, error: Error: 75 - Path/File access error | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat a directory |
| 5 read carcols.dat | no access | save, error: Error: 75 - Path/File access error | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat as of call 4 |
| 5 read carcols.dat | device | save, error: Error: 57 - Device I/O error | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 0,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat as of call 4 |
| 5 read carcols.dat | changed | save, information: E116 | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 99,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | saved | copy | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat as changed; copy "# another\ncol\n5,5,5\t\t\t\t# 0 dust\nend\ncar\nbus, 0, 1\nend\n\n" |
| 6 write copy | missing, changed | save, information: E116 | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 99,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | saved | copy | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat as of call 4; copy as of call 6 |
| 6 write copy | no folder | save, error: Error: 76 - Path not found | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 99,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat as of call 4; copy gone |
| 6 write copy | directory | save, error: Error: 75 - Path/File access error | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 99,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat as of call 4; copy a directory |
| 6 write copy | no access | save, error: Error: 75 - Path/File access error | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 99,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat as of call 4 |
| 6 write copy | disk full | save, error: Error: 61 - Disk full | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 99,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat as of call 4; copy empty |
| 6 write copy | cut short | save, error: Error: 61 - Disk full | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 99,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat as of call 4; copy half of call 6 |
| 6 write copy | device | save, error: Error: 57 - Device I/O error | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 99,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat as of call 4; copy half of call 6 |
| 6 write copy | close | save, error: Error: 57 - Device I/O error | 0: 99,0,0 black, 1: 9,9,9 grey / 0: 99,0,0 black, 1: 9,9,9 grey; bus 0,1 / bus 0,1 | pending | carcols.dat | commands SSTab3 | bus | - | E000 E001 | - | carcols.dat as of call 4; copy as of call 6 |
)"},
};
// clang-format on

}  // namespace wheelwright::testing
