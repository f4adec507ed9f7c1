#include "hostile/Cases.h"
#include "hostile/LargeFile.h"
#include "replay/PictureHeader.h"

#include <string>

#ifdef WHEELWRIGHT_REAL_WINDOWS
#include "forms/qt/widgets/Pictures.h"
#endif

namespace wheelwright::hostile {
namespace {

constexpr int kDefinitionIndex = 2;
constexpr std::size_t kLanguageSize = 500 * kMegabyte;

std::string OpenDefinitions(const std::string& folder) {
  return JustOpen(folder, kDefinitionIndex);
}
std::string SaveDefinitions(const std::string& folder) {
  return OpenAndSave(folder, kDefinitionIndex);
}

void LongDefinition(const std::string& folder) {
  LargeFile(folder + "/in.ide")
      .Add("cars\r\n130, ")
      .AddBytes("bus", kLongLine)
      .Add(", bus, boat, BUS, BUS, null, normal, 30, 7, 0\r\nend\r\n");
}

void ManyFields(const std::string& folder) {
  LargeFile(folder + "/in.ide").Add("cars\r\n130").AddBytes(",1", kLongLine).Add("\r\nend\r\n");
}

void ManyDefinitions(const std::string& folder) {
  LargeFile file(folder + "/in.ide");
  file.Add("cars\r\n");
  for (int i = 0; i < 32765; ++i) {
    file.Add(std::to_string(i) + ", bus, bus, boat, BUS, BUS, null, normal, 30, 7, 0\r\n");
  }
  file.Add("end\r\n");
}

void ManyTexts(const std::string& folder) {
  LargeFile(folder + "/Deutsch.lng").AddBytes("text\r\n", kLanguageSize);
}

void OneLongText(const std::string& folder) {
  LargeFile(folder + "/Deutsch.lng").AddBytes("text", kLanguageSize);
}

std::string Start(const std::string& folder) {
  const Stage stage(folder);
  return stage.Outcome() + ", " + std::to_string(stage.s.vars.Lang.front().size()) + " bytes";
}

// The headers of a bitmap of 60,000 by 60,000 points and a few of its bytes.
void LargePicture(const std::string& folder) {
  const std::string size = {'\x60', '\xEA', 0, 0};
  const std::string info = {40, 0, 0, 0};
  LargeFile(folder + "/BUS.bmp")
      .Add("BM")
      .Add(std::string(8, '\0'))
      .Add(std::string({54, 0, 0, 0}))
      .Add(info + size + size)
      .Add(std::string({1, 0, 24, 0}))
      .Add(std::string(24 + 300, '\0'));
}

std::string ReadHeader(const std::string& folder) {
  const auto size = replay::SizeInHeader(DiskFiles().Read(folder + "/BUS.bmp"));
  return size ? std::to_string(size->width) : "no picture";
}

#ifdef WHEELWRIGHT_REAL_WINDOWS
std::string ReadImage(const std::string& folder) {
  const QImage image = ReadPicture(folder + "/BUS.bmp");
  return image.isNull() ? "no picture" : std::to_string(image.width());
}
#endif

}  // namespace

std::vector<Case> OtherCases() {
  return {
      {"definition with a field of 200 MB", LongDefinition, SaveDefinitions,
       "normal, 1 names, 1 records, 0 problems; information: E116, 1 names, 1 records, 0 problems",
       1450},
      {"definition with 100 million fields", ManyFields, OpenDefinitions,
       "error: Error: 6 - Overflow, 0 names, 0 records, 0 problems", 500},
      {"32,765 definitions of one name", ManyDefinitions, SaveDefinitions,
       "normal, 32765 names, 32765 records, 0 problems; information: E116, 32765 names, 32765 "
       "records, 0 problems",
       50},
      {"language file of 500 MB", ManyTexts, Start,
       "ends with 9, 0 names, 0 records, 0 problems, 4 bytes", 650},
      {"language file, one line of 500 MB", OneLongText, Start,
       "nothing, 0 names, 0 records, 0 problems, 500000000 bytes", 1800},
      {"picture of 60,000 x 60,000, plain", LargePicture, ReadHeader, "no picture", 50},
#ifdef WHEELWRIGHT_REAL_WINDOWS
      {"picture of 60,000 x 60,000, windows", LargePicture, ReadImage, "no picture", 50},
#endif
  };
}

}  // namespace wheelwright::hostile
