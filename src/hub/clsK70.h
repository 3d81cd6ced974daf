// The one model of the microscope: its connection, what is fitted, and its configuration units.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "condensers/clsCondenser.h"
#include "condensers/clsDbCondenser.h"
#include "filters/FilterItemNames.h"
#include "filters/clsDbFilter.h"
#include "filters/clsFilter.h"
#include "hub/SettingsFile.h"
#include "hub/Transfers.h"
#include "hub/clsMutex.h"
#include "interlocks/clsInterLockObservation.h"
#include "interlocks/clsInterLockOffset.h"
#include "interlocks/clsInterLockOther.h"
#include "model/ConnectedMicroscope.h"
#include "objectives/clsDbNosepiece.h"
#include "objectives/clsLimitation.h"
#include "objectives/clsNosepiece.h"

namespace mortane {

// A running program has one, reached through GetK70. Failures of the controller become boxes
// and lines of reports; only ReadMicVer, the first step of Modify, and file readers whose data
// make a conversion fail raise a Failure to the caller.
class clsK70 : public ConnectedMicroscope {
 public:
  // Makes the units; the library is not asked for anything yet.
  clsK70(controller::ControllerLibrary& library, Prompts& prompts,
         NamedMutexMaker makeMutex = MakeNamedMutex);

  // Creates the controller's root and lets it list its devices. A failure is shown, and every
  // later use of the controller fails in its own way.
  void Initialize();

  // Disconnects a connected device in silence and lets go of its name.
  ~clsK70();

  // The system name as last read or edited; a controller holds 15 characters of it.
  std::string SystemName;

  // The configuration units. Their order is that in which callers know them. Some get a sibling
  // that is made after them, so no unit uses its siblings while it is made.
  clsNosepiece curNosepiece{*this, DbNosepiece};
  clsDbNosepiece DbNosepiece{*this};
  clsLimitation curLimit{*this};
  clsFilter curFilter{*this, dbFilter};
  clsDbFilter dbFilter{*this, Exciter, Dichroic, Barrier};
  clsDbExciter Exciter{*this};
  clsDbDichroic Dichroic{*this};
  clsDbBarrier Barrier{*this};
  clsCondenser curCondenser{*this, dbcon};
  clsDbCondenser dbcon{*this};
  clsInterLockObservation ILObservation{*this};
  clsInterLockOther ILOther{*this};
  clsInterLockOffset ILOffset{*this};

  // Which sections of a settings file are present and wanted: -1 yes, 0 no. Positions 0 to 9;
  // others read 0 and store nothing.
  std::int16_t FileItem(std::int16_t pos) const;
  void FileItem(std::int16_t pos, std::int16_t value);

  // Takes the exclusive use of device `Name`, letting go of the one held before. False when
  // another process holds it. Raises error 52 when the system refuses the name.
  bool CreateConnectionName(const std::string& Name);
  void DeleteConnectionName();

  // Entries of the device list, simulator included; 0 after a failure, which is shown.
  std::int32_t DeviceCount();
  // Name of an entry; empty after a failure, which is shown.
  std::string DeviceName(std::int32_t index);

  // Connects and detects what is fitted. A failure after the device answered leaves the answer
  // true and lConnectDevice at -1.
  bool Connect(std::int32_t DeviceNo);
  void Disconnect();

  // All units from the controller, all to the controller, and the list of what would change.
  // Failures of units are shown once, at the end, and stop nothing.
  void Receive();
  void Send();
  std::string Modify();

  // Sections of a settings file: which are there, reading the wanted ones, writing all.
  void ReadXMLItems(const std::string& fname);
  void ReadXML(const std::string& fname);
  void WriteXML(const std::string& fname);
  // A file of the hand controller's settings alone.
  void Tactor_ReadXML(const std::string& fname);
  void Tactor_WriteXML(const std::string& fname);

  // The report of what is fitted and what is not, for the user.
  std::string GetAccessories();

 private:
  // The count of a turret's addresses: 0 when the accessory is not mounted.
  struct Turret {
    std::int32_t accessory;
    std::string_view failureLabel;
    // The members that keep it: of the turret's own unit, and of units that position by address.
    std::vector<std::int32_t*> counts;
  };

  void CreateRoot();
  void FillTables();
  controller::DeviceEntry Entry() const;
  std::string DeviceNameOf(std::int32_t index) const;
  std::int32_t TurretCount(const Turret& turret) const;
  void FixTurretSizes();
  void CheckAccessories();
  void DetectControllers();
  void DetectAccessories();
  void SetMounted(std::int32_t accessory, std::int32_t value);

  std::string ReadSystemName();
  std::string WriteSystemName();
  std::string ReadTurretCounts();
  void Progress(std::size_t stepsDone) const;

  std::optional<DomNode> LoadSettings(const std::string& fname, DomDocument& document);
  std::string ReadSection(std::size_t fileItem, const DomNode& section);
  std::string ReadSystemElement(const DomNode& element);
  void WriteSection(std::size_t fileItem, DomDocument& document, DomNode& root) const;
  void SaveSections(const std::string& fname, std::size_t first, std::string_view failureText);

  controller::ControllerLibrary& library_;
  std::array<std::int16_t, 10> fileItems_{};
  NamedMutexMaker makeMutex_;
  std::unique_ptr<clsMutex> mutex_;
  TransferTable transfers_;
  FileTable fileTable_;
  std::array<Turret, 3> turrets_;
};

// The one instance. ProvideK70 makes it without a call to the library, so that pages can be given
// their units; the first GetK70 initialises it. ReleaseK70 destroys it: after the windows, whose
// pages refer to it, and before the toolkit ends. Without an instance GetK70 raises error 91.
clsK70& ProvideK70(controller::ControllerLibrary& library, Prompts& prompts,
                   NamedMutexMaker makeMutex = MakeNamedMutex);
clsK70& GetK70();
void ReleaseK70();

}  // namespace mortane
