#include "app/SettingsFiles.h"

#include "app/CommandBoundary.h"
#include "app/SelFileItemDlg.h"
#include "hub/clsK70.h"

namespace mortane {

FileQuestion SettingsFileQuestion() {
  return {0, "XML File (*.xml)|*.xml", ".xml"};
}

FileResult OpenSettings(Prompts& prompts, FileQuestion& question, QWidget* parent) {
  question.flags = kFileOpenFlags;
  FileResult result{prompts.AskFileToOpen(question), std::nullopt};
  if (result.path.empty()) return result;
  RunStep(prompts, [&] { GetK70().ReadXMLItems(result.path); });
  const bool wanted = SelFileItemDlg(GetK70(), parent).exec() == QDialog::Accepted;
  bool whole = false;
  RunStep(prompts, [&] { whole = GetK70().ReadXML(result.path); });
  if (wanted) result.whole = whole;
  return result;
}

FileResult SaveSettings(Prompts& prompts, FileQuestion& question) {
  question.flags = kFileSaveFlags;
  FileResult result{prompts.AskFileToSave(question), std::nullopt};
  if (result.path.empty()) return result;
  result.whole = false;
  RunStep(prompts, [&] { result.whole = GetK70().WriteXML(result.path); });
  return result;
}

}  // namespace mortane
