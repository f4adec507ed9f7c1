#include "forms/qt/widgets/ShownText.h"

#include "core/CodePage.h"

namespace wheelwright {

QString Shown(const std::string& codePageText) { return QString::fromStdString(ToUnicode(codePageText)); }

std::string InCodePage(const QString& text) { return FromUnicode(text.toStdString()); }

QString ShownCaption(const std::string& codePageText) { return ShownMessage(ToUnicode(codePageText)); }

QString ShownMessage(const std::string& utf8) { return QString::fromStdString(utf8).replace("\r\n", "\n"); }

QString WithoutMarks(const QString& caption) {
  QString read;
  for (qsizetype i = 0; i < caption.size(); ++i) {
    if (caption[i] == '&' && i + 1 < caption.size()) ++i;
    read += caption[i];
  }
  return read;
}

QString WithDoubledMarks(QString text) { return text.replace("&", "&&"); }

QString ShownTitle(const std::string& utf8) { return QString::fromStdString(utf8).replace("[*]", "[*][*]"); }

}  // namespace wheelwright
