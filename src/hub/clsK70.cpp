#include "hub/clsK70.h"

#include <utility>

#include "common/ErrorTrap.h"
#include "common/FailureText.h"
#include "common/Numbers.h"
#include "common/Text.h"
#include "condensers/clsCondenser.h"
#include "condensers/clsDbCondenser.h"
#include "controller/ControllerNumbers.h"
#include "drives/clsControlOther.h"
#include "drives/clsControlXYDrive.h"
#include "drives/clsControlZDrive.h"
#include "filters/FilterItemNames.h"
#include "filters/clsDbFilter.h"
#include "filters/clsFilter.h"
#include "interlocks/clsInterLockObservation.h"
#include "interlocks/clsInterLockOffset.h"
#include "interlocks/clsInterLockOther.h"
#include "objectives/clsDbNosepiece.h"
#include "objectives/clsLimitation.h"
#include "objectives/clsNosepiece.h"
#include "switches/clsControlTactor.h"
#include "switches/clsDbSwitch.h"

namespace mortane {
namespace {

struct Instance {
  std::unique_ptr<clsK70> k70;
  bool initialised = false;
};

Instance& TheInstance() {
  static Instance instance;
  return instance;
}

// A unit joins the transfers by a row here, and the settings file by one in AddUnits.
TransferTable TransfersOf(clsK70& k70) {
  const auto mounted = [&k70](std::int32_t number) {
    return [&k70, number] { return k70.IsMounted(number) != kNotMounted; };
  };
  const auto present = [&k70](std::int32_t unit) {
    return [&k70, unit] { return k70.Controller(unit); };
  };
  return {
      MakeTransferStep("curNosepiece", k70.curNosepiece, mounted(accessory::kNosepiece)),
      MakeTransferStep("DbNosepiece", k70.DbNosepiece, mounted(accessory::kNosepiece)),
      MakeTransferStep("curLimit", k70.curLimit,
                       [&k70] { return k70.IsControllable(accessory::kNosepiece); }),
      MakeTransferStep("curFilter", k70.curFilter, mounted(accessory::kFilterCube)),
      MakeTransferStep("dbFilter", k70.dbFilter, mounted(accessory::kFilterCube)),
      MakeTransferStep("Exciter", k70.Exciter, mounted(accessory::kFilterCube)),
      MakeTransferStep("Dichroic", k70.Dichroic, mounted(accessory::kFilterCube)),
      MakeTransferStep("Barrier", k70.Barrier, mounted(accessory::kFilterCube)),
      MakeTransferStep("curCondenser", k70.curCondenser, mounted(accessory::kCondenser)),
      MakeTransferStep("dbcon", k70.dbcon, mounted(accessory::kCondenser)),
      MakeEnabledStep("ILObservation", k70.ILObservation),
      MakeEnabledStep("ILOther", k70.ILOther),
      MakeEnabledStep("ILOffset", k70.ILOffset),
      MakeEnabledStep("CZDrive", k70.CZDrive),
      MakeEnabledStep("CXYDrive", k70.CXYDrive),
      MakeEnabledStep("COther", k70.COther),
      MakeTransferStep("curSwitch", k70.curSwitch, present(controllerunit::kBody)),
      MakeTransferStep("curTactor", k70.curTactor, present(controllerunit::kHandController)),
  };
}

// The rows of all units, behind that of the system name.
void AddUnits(FileTable& table, clsK70& k70) {
  const FileTable rows{
      MakeFileElement(fileitem::kNosepiece, k70.curNosepiece),
      MakeFileElement(fileitem::kNosepiece, k70.DbNosepiece),
      MakeFileElement(fileitem::kNosepiece, k70.curLimit),
      MakeFileElement(fileitem::kFilter, k70.curFilter),
      MakeFileElement(fileitem::kFilter, k70.dbFilter),
      MakeFileElement(fileitem::kFilter, k70.Exciter),
      MakeFileElement(fileitem::kFilter, k70.Dichroic),
      MakeFileElement(fileitem::kFilter, k70.Barrier),
      MakeFileElement(fileitem::kCondenser, k70.curCondenser),
      MakeFileElement(fileitem::kCondenser, k70.dbcon),
      MakeFileElement(fileitem::kInterlock, k70.ILObservation),
      MakeFileElement(fileitem::kInterlock, k70.ILOther),
      {fileitem::kInterlock,
       clsInterLockOther::kLightPathElement,
       NameMatch::IgnoringCase,
       [&unit = k70.ILOther](const DomNode& element) { return unit.ReadLPDom(element); },
       {}},
      {fileitem::kInterlock,
       clsInterLockOther::kZoomElement,
       NameMatch::IgnoringCase,
       [&unit = k70.ILOther](const DomNode& element) { return unit.ReadZMDom(element); },
       {}},
      MakeFileElement(fileitem::kInterlock, k70.ILOffset),
      MakeFileElement(fileitem::kControl, k70.CZDrive),
      MakeFileElement(fileitem::kControl, k70.CXYDrive),
      MakeFileElement(fileitem::kControl, k70.COther),
      MakeFileElement(fileitem::kSwitch, k70.curSwitch),
      MakeFileElement(fileitem::kTactor, k70.curTactor),
  };
  table.insert(table.end(), rows.begin(), rows.end());
}

}  // namespace

// Some units are declared before the sibling they refer to: a unit's constructor may keep such a
// reference but must not use it.
struct clsK70::Units {
  explicit Units(ConnectedMicroscope& owner) : microscope(owner) {}

  ConnectedMicroscope& microscope;
  clsNosepiece curNosepiece{microscope, DbNosepiece};
  clsDbNosepiece DbNosepiece{microscope};
  clsLimitation curLimit{microscope};
  clsFilter curFilter{microscope, dbFilter};
  clsDbFilter dbFilter{microscope, Exciter, Dichroic, Barrier};
  clsDbExciter Exciter{microscope};
  clsDbDichroic Dichroic{microscope};
  clsDbBarrier Barrier{microscope};
  clsCondenser curCondenser{microscope, dbcon};
  clsDbCondenser dbcon{microscope};
  clsInterLockObservation ILObservation{microscope};
  clsInterLockOther ILOther{microscope};
  clsInterLockOffset ILOffset{microscope};
  clsControlZDrive CZDrive{microscope};
  clsControlXYDrive CXYDrive{microscope};
  clsControlOther COther{microscope};
  clsControlTactor curTactor{microscope};
  clsDbSwitch curSwitch{microscope};
};

clsK70::clsK70(controller::ControllerLibrary& library, Prompts& prompts, NamedMutexMaker makeMutex)
    : ConnectedMicroscope(prompts),
      units_(std::make_unique<Units>(*this)),
      curNosepiece(units_->curNosepiece),
      DbNosepiece(units_->DbNosepiece),
      curLimit(units_->curLimit),
      curFilter(units_->curFilter),
      dbFilter(units_->dbFilter),
      Exciter(units_->Exciter),
      Dichroic(units_->Dichroic),
      Barrier(units_->Barrier),
      curCondenser(units_->curCondenser),
      dbcon(units_->dbcon),
      ILObservation(units_->ILObservation),
      ILOther(units_->ILOther),
      ILOffset(units_->ILOffset),
      CZDrive(units_->CZDrive),
      CXYDrive(units_->CXYDrive),
      COther(units_->COther),
      curTactor(units_->curTactor),
      curSwitch(units_->curSwitch),
      library_(library),
      makeMutex_(std::move(makeMutex)),
      turrets_{
          {{accessory::kNosepiece,
            "Nosepiece Count",
            "curNosepiece",
            {&curNosepiece.Count, &CXYDrive.NoseCount, &CZDrive.NoseCount}},
           {accessory::kFilterCube, "Filter Cube Count", "curFilter", {&curFilter.Count}},
           {accessory::kCondenser, "Condenser Count", "curCondenser", {&curCondenser.Count}}}} {
  FillTables();
}

void clsK70::Initialize() {
  try {
    CreateRoot();
    Mic.DeviceList().Count();  // makes the library scan for devices
  } catch (const Failure& failure) {
    prompts().MsgBox(OperationError("clsK70_Initialize", failure), box::kOk);
  }
}

clsK70::~clsK70() {
  if (lConnectDevice >= 0 && !Mic.IsEmpty()) {
    // A failure is ignored: nothing can be shown any more.
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

void clsK70::FillTables() {
  transfers_ = TransfersOf(*this);
  // Kept: this name alone is compared with regard to case.
  fileTable_ = {{fileitem::kSystem, "QHRMNAME", NameMatch::Exact,
                 [this](const DomNode& element) { return ReadSystemElement(element); },
                 [this](DomDocument& document, DomNode section) {
                   DomNode element = document.CreateElement("QHRMNAME");
                   element.SetAttribute("NAME", SystemName);
                   section.Append(element);
                 }}};
  AddUnits(fileTable_, *this);
}

bool clsK70::IsInterlockEnable() const {
  return ILObservation.IsEnable() || ILOther.IsEnable() || ILOffset.IsEnable();
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
  if (!mutex_) mutex_ = std::make_unique<clsMutex>(makeMutex_());
  mutex_->Delete();
  std::string name = "MortaneConnection-";
  for (const char c : Name) name += Hex(static_cast<unsigned char>(c));
  return mutex_->Create(name);
}

void clsK70::DeleteConnectionName() {
  if (mutex_) mutex_->Delete();
}

clsK70& ProvideK70(controller::ControllerLibrary& library, Prompts& prompts,
                   NamedMutexMaker makeMutex) {
  TheInstance() = {std::make_unique<clsK70>(library, prompts, std::move(makeMutex)), false};
  return *TheInstance().k70;
}

clsK70& GetK70() {
  Instance& instance = TheInstance();
  if (!instance.k70) RaiseOwnFailure(kNoObjectError, "There is no microscope object.");
  if (!std::exchange(instance.initialised, true)) instance.k70->Initialize();
  return *instance.k70;
}

void ReleaseK70() {
  TheInstance() = {};
}

}  // namespace mortane
