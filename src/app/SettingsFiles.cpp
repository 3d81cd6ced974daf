#include "app/SettingsFiles.h"

#include "app/CommandBoundary.h"
#include "app/SelFileItemDlg.h"
#include "hub/clsK70.h"

namespace mortane {

FileQuestion SettingsFileQuestion() {
  return {0, "XML File (*.xml)|*.xml", ".xml"};
}

bool OpenSettings(Prompts& prompts, FileQuestion& question, QWidget* parent) {
  question.flags = kFileOpenFlags;
  const std::string name = prompts.AskFileToOpen(question);
  if (name.empty()) return false;
  RunStep(prompts, [&] { GetK70().ReadXMLItems(name); });
  SelFileItemDlg(GetK70(), parent).exec();
  RunStep(prompts, [&] { GetK70().ReadXML(name); });
  return true;
}

void SaveSettings(Prompts& prompts, FileQuestion& question) {
  question.flags = kFileSaveFlags;
  const std::string name = prompts.AskFileToSave(question);
  if (!name.empty()) RunStep(prompts, [&] { GetK70().WriteXML(name); });
}

}  // namespace mortane
