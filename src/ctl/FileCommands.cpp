// The commands that need settings files only, and no microscope.
#include <algorithm>
#include <filesystem>
#include <ostream>

#include "common/Failure.h"
#include "common/Text.h"
#include "controller/simulator/Benches.h"
#include "controller/simulator/SimulatedLibrary.h"
#include "ctl/Commands.h"
#include "ctl/ResultJson.h"
#include "ctl/ResultText.h"
#include "ctl/SettingsInput.h"
#include "ctl/ShownText.h"
#include "record/Comparison.h"

namespace mortane::ctl {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kSettingsExtension = ".xml";

// A model that files are read into. What a reader accepts depends on the lists of series and types
// that a microscope gives, and not on what was read before; the lists are those of the simulated
// microscope.
class CheckModel {
 public:
  explicit CheckModel(Surroundings& surroundings) : surroundings_(surroundings) {
    k70_.Initialize();
    k70_.Connect(0);
    k70_.Receive();
    static_cast<void>(prompts_.TakeLines());
  }

  CheckedFile Check(const std::string& path) {
    CheckedFile checked{path, {}, {}};
    try {
      const DomDocument document = ReadSettings(path, surroundings_);
      checked.refused = TakeSections(k70_, prompts_, document, NameOfFile(path), sections_);
    } catch (const Failure& failure) {
      checked.problem = failure.Description();
    }
    return checked;
  }

 private:
  Surroundings& surroundings_;
  const std::vector<std::size_t> sections_ = SectionsNamed({});
  Surroundings silent_{surroundings_.in, surroundings_.out, surroundings_.err};
  ConsolePrompts prompts_{silent_};
  controller::SimulatedLibrary library_{controller::benches::Named("Quay")};
  clsK70 k70_{library_, prompts_};
};

fs::path PathOf(const std::string& utf8) {
  return fs::path(std::u8string(utf8.begin(), utf8.end()));
}

std::string Utf8Of(const fs::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

// The settings files in a folder and those below it, in the order of their names. Hidden folders,
// as that of a repository, are left out.
std::vector<std::string> FilesIn(const std::string& folder) {
  std::vector<std::string> files;
  std::error_code error;
  fs::recursive_directory_iterator entry(PathOf(folder), error);
  for (; !error && entry != fs::recursive_directory_iterator(); entry.increment(error)) {
    const std::string name = Utf8Of(entry->path().filename());
    std::error_code ignored;
    if (entry->is_directory(ignored)) {
      if (name.starts_with('.')) entry.disable_recursion_pending();
    } else if (EqualsIgnoringCase(Utf8Of(entry->path().extension()), kSettingsExtension)) {
      files.push_back(Utf8Of(entry->path()));
    }
  }
  if (error) Refuse("cannot read the folder " + folder + ": " + error.message());
  if (files.empty())
    Refuse(folder + ": the folder holds no file *" + std::string(kSettingsExtension));
  std::sort(files.begin(), files.end());
  return files;
}

bool IsFolder(const std::string& path) {
  std::error_code error;
  return path != kStandardStream && fs::is_directory(PathOf(path), error);
}

// The answers of a check, each given as soon as it is known: the files may be many.
class CheckAnswers {
 public:
  CheckAnswers(bool json, Surroundings& surroundings) : json_(json), surroundings_(surroundings) {
    if (json_) surroundings_.out << "{\"files\":[";
  }

  void Add(const CheckedFile& file) {
    if (json_) {
      surroundings_.out << (count_ == 0 ? "\n" : ",\n") << ToJson(file);
    } else if (!file.problem.empty()) {
      surroundings_.err << kProgram << ": " << Shown(file.problem) << '\n';
    } else {
      ResultText(surroundings_.out, surroundings_.colour).Write(file);
    }
    ++count_;
    refused_ += file.refused.size();
    if (!file.problem.empty()) ++unreadable_;
  }

  Outcome End() {
    if (json_) {
      surroundings_.out << "\n],\"checked\":" << count_ << ",\"refused\":" << refused_
                        << ",\"unreadable\":" << unreadable_ << "}\n";
    } else {
      surroundings_.out << Counted(count_, "file", "files") << " checked, "
                        << Counted(refused_, "line", "lines") << " refused, "
                        << Counted(unreadable_, "file", "files") << " not readable\n";
    }
    if (unreadable_ > 0) return Outcome::Failed;
    return refused_ > 0 ? Outcome::Different : Outcome::Done;
  }

 private:
  bool json_;
  Surroundings& surroundings_;
  std::size_t count_ = 0;
  std::size_t refused_ = 0;
  std::size_t unreadable_ = 0;
};

}  // namespace

Outcome CheckFiles(const Request& request, Surroundings& surroundings) {
  CheckAnswers answers(request.json, surroundings);
  CheckModel model(surroundings);
  for (const std::string& path : request.files) {
    std::vector<std::string> files{path};
    if (IsFolder(path)) {
      try {
        files = FilesIn(path);
      } catch (const Failure& failure) {
        answers.Add({path, failure.Description(), {}});
        continue;
      }
    }
    for (const std::string& file : files) {
      // Nobody reads on: the rest would be work for nothing.
      if (!surroundings.out) return Outcome::Failed;
      if (surroundings.endAsked()) throw EndAsked();
      answers.Add(model.Check(file));
    }
  }
  return answers.End();
}

Outcome CompareFiles(const Request& request, Surroundings& surroundings) {
  const std::string& first = request.files.front();
  const std::string& second = request.files.back();
  if (first == kStandardStream && second == kStandardStream) {
    Refuse("only one of the files can be the standard input");
  }
  const ConfigurationState from = StateOf(ReadSettings(first, surroundings));
  const ConfigurationState to = StateOf(ReadSettings(second, surroundings));
  const Differences differences = DifferencesOf(from.items, to.items);
  ComparisonResult result;
  result.files = {first, second};
  result.changed = NamesOf(differences.changed, from.names, to.names);
  result.onlyFirst = NamesOf(differences.onlyFirst, from.names);
  result.onlySecond = NamesOf(differences.onlySecond, to.names);
  if (request.json) {
    surroundings.out << ToJson(result) << '\n';
  } else {
    ResultText(surroundings.out, surroundings.colour).Write(result);
  }
  return result.IsSame() ? Outcome::Done : Outcome::Different;
}

}  // namespace mortane::ctl
