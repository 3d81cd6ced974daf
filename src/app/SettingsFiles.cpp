#include "app/SettingsFiles.h"

#include "app/CommandBoundary.h"
#include "app/SelFileItemDlg.h"
#include "hub/clsK70.h"

namespace mortane {

namespace {

bool OffersSections(const clsK70& k70) {
  for (std::size_t i = 0; i < kFileSections.size(); ++i) {
    if (k70.FileItem(static_cast<std::int16_t>(i)) != 0) return true;
  }
  return false;
}

}  // namespace

FileQuestion SettingsFileQuestion() {
  return {0, "XML File (*.xml)|*.xml", ".xml"};
}

FileResult OpenSettings(Prompts& prompts, FileQuestion& question, QWidget* parent) {
  question.flags = kFileOpenFlags;
  return OpenSettingsFile(prompts, prompts.AskFileToOpen(question), parent);
}

// The sections are read from the document that they were offered from, whatever becomes of the file
// meanwhile. Kept: a file that cannot be read is told before and after the question.
FileResult OpenSettingsFile(Prompts& prompts, const std::string& path, QWidget* parent) {
  FileResult result{path, std::nullopt};
  if (path.empty()) return result;
  clsK70& k70 = GetK70();
  DomDocument document;
  bool loaded = false;
  RunStep(prompts, [&] { loaded = k70.ReadXMLItems(path, document); });
  const bool offered = OffersSections(k70);
  const std::string why = loaded ? "This is no settings file." : document.Problem();
  const bool wanted = SelFileItemDlg(k70, parent, why).exec() == QDialog::Accepted;
  Outcome outcome = offered ? Outcome::WithFailures : Outcome::NotDone;
  RunStep(prompts, [&] {
    const bool read = loaded ? k70.ReadSections(document, path) : k70.ReadXML(path);
    if (read && loaded) outcome = Outcome::Complete;
  });
  if (wanted) result.outcome = outcome;
  return result;
}

FileResult SaveSettings(Prompts& prompts, FileQuestion& question) {
  question.flags = kFileSaveFlags;
  FileResult result{prompts.AskFileToSave(question), std::nullopt};
  if (result.path.empty()) return result;
  result.outcome = Outcome::NotDone;
  RunStep(prompts, [&] {
    if (GetK70().WriteXML(result.path)) result.outcome = Outcome::Complete;
  });
  return result;
}

}  // namespace mortane
