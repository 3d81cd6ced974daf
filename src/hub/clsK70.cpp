#include "hub/clsK70.h"

#include "common/Numbers.h"
#include "common/Text.h"

namespace mortane {
namespace {

// Where the program's own library and prompts are kept until the first GetK70.
struct Provider {
  controller::ControllerLibrary* library = nullptr;
  Prompts* prompts = nullptr;
  std::unique_ptr<clsK70> instance;
};

Provider& TheProvider() {
  static Provider provider;
  return provider;
}

}  // namespace

clsK70::clsK70(controller::ControllerLibrary& library, Prompts& prompts)
    : ConnectedMicroscope(prompts),
      library_(library),
      turrets_{
          {{accessory::kNosepiece,
            [](const controller::Microscope& mic) { return mic.NosepieceDevice().Positions(); },
            "Nosepiece Count",
            {&curNosepiece.Count}},
           {accessory::kFilterCube,
            [](const controller::Microscope& mic) { return mic.FilterCubeDevice().Positions(); },
            "Filter Cube Count",
            {&curFilter.Count}},
           {accessory::kCondenser,
            [](const controller::Microscope& mic) { return mic.CondenserDevice().Positions(); },
            "Condenser Count",
            {&curCondenser.Count}}}} {
  FillTables();
  try {
    CreateRoot();
    Mic.DeviceList().Count();  // a new root scans for devices when it is asked
  } catch (const Failure& failure) {
    prompts.MsgBox(OperationError("clsK70_Initialize", failure), box::kOk);
  }
}

clsK70::~clsK70() {
  if (lConnectDevice >= 0 && !Mic.IsEmpty()) {
    // Nobody is left to be told: a device that does not answer is let go all the same.
    ErrorTrap trap;
    trap.Run([this] { Entry().Disconnect(); });
    Mic = {};
  }
  DeleteConnectionName();
}

void clsK70::CreateRoot() {
  Mic = {};
  Mic = controller::Microscope(library_.Create("Microscope"));
}

// The one table of units in each direction; a unit joins a transfer and the settings file by
// its row here.
void clsK70::FillTables() {
  const auto mounted = [this](std::int32_t number) {
    return [this, number] { return IsMounted(number) != kNotMounted; };
  };
  transfers_ = {
      MakeTransferStep(curNosepiece, mounted(accessory::kNosepiece)),
      MakeTransferStep(DbNosepiece, mounted(accessory::kNosepiece)),
      MakeTransferStep(curLimit,
                       [this] { return IsMounted(accessory::kNosepiece) == kControllable; }),
      MakeTransferStep(curFilter, mounted(accessory::kFilterCube)),
      MakeTransferStep(dbFilter, mounted(accessory::kFilterCube)),
      MakeTransferStep(Exciter, mounted(accessory::kFilterCube)),
      MakeTransferStep(Dichroic, mounted(accessory::kFilterCube)),
      MakeTransferStep(Barrier, mounted(accessory::kFilterCube)),
      MakeTransferStep(curCondenser, mounted(accessory::kCondenser)),
      MakeTransferStep(dbcon, mounted(accessory::kCondenser)),
  };
  fileTable_ = {
      {fileitem::kSystem, "QHRMNAME", NameMatch::Exact,
       [this](const DomNode& element) { return ReadSystemElement(element); },
       [this](DomDocument& document, DomNode section) {
         DomNode element = document.CreateElement("QHRMNAME");
         element.SetAttribute("NAME", SystemName);
         section.Append(element);
       }},
      MakeFileElement(fileitem::kNosepiece, "ITEM", curNosepiece),
      MakeFileElement(fileitem::kNosepiece, "OPTION", DbNosepiece),
      MakeFileElement(fileitem::kNosepiece, "LIMIT", curLimit),
      MakeFileElement(fileitem::kFilter, "ITEM", curFilter),
      MakeFileElement(fileitem::kFilter, "OPTION", dbFilter),
      MakeFileElement(fileitem::kFilter, "EXCITER", Exciter),
      MakeFileElement(fileitem::kFilter, "DICHROIC", Dichroic),
      MakeFileElement(fileitem::kFilter, "BARRIER", Barrier),
      MakeFileElement(fileitem::kCondenser, "ITEM", curCondenser),
      MakeFileElement(fileitem::kCondenser, "OPTION", dbcon),
  };
}

std::int16_t clsK70::FileItem(std::int16_t pos) const {
  if (pos < 0 || static_cast<std::size_t>(pos) >= fileItems_.size()) return 0;
  return fileItems_[static_cast<std::size_t>(pos)];
}

void clsK70::FileItem(std::int16_t pos, std::int16_t value) {
  if (pos < 0 || static_cast<std::size_t>(pos) >= fileItems_.size()) return;
  fileItems_[static_cast<std::size_t>(pos)] = value;
}

bool clsK70::CreateConnectionName(const std::string& Name) {
  if (!mutex_) mutex_ = std::make_unique<clsMutex>();
  mutex_->Delete();
  std::string name = "MortaneConnection-";
  for (const char c : Name) name += Hex(static_cast<unsigned char>(c));
  return mutex_->Create(name);
}

void clsK70::DeleteConnectionName() {
  if (mutex_) mutex_->Delete();
}

void ProvideK70(controller::ControllerLibrary& library, Prompts& prompts) {
  TheProvider().library = &library;
  TheProvider().prompts = &prompts;
}

clsK70& GetK70() {
  Provider& provider = TheProvider();
  if (!provider.instance) {
    if (provider.library == nullptr || provider.prompts == nullptr) {
      RaiseOwnFailure(kNoObjectError, "No controller library was provided.");
    }
    provider.instance = std::make_unique<clsK70>(*provider.library, *provider.prompts);
  }
  return *provider.instance;
}

void ReleaseK70() {
  TheProvider().instance.reset();
}

}  // namespace mortane
