// The model of the microscope: its connection, the accessories, and the configuration units.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "filters/FilterItem.h"
#include "hub/SettingsFile.h"
#include "hub/Transfers.h"
#include "hub/clsMutex.h"
#include "model/ConnectedMicroscope.h"

namespace mortane {

class clsCondenser;
class clsControlOther;
class clsControlTactor;
class clsControlXYDrive;
class clsControlZDrive;
class clsDbCondenser;
class clsDbFilter;
class clsDbNosepiece;
class clsDbSwitch;
class clsFilter;
class clsInterLockObservation;
class clsInterLockOffset;
class clsInterLockOther;
class clsLimitation;
class clsNosepiece;

// A running program has one, which GetK70 returns. Failures of the controller become boxes and
// lines of reports. Only ReadMicVer, the first step of Modify, and readers of a file with data that
// no conversion can take raise a Failure to the caller.
class clsK70 : public ConnectedMicroscope {
  // Declared first: the references below are to its members.
  struct Units;
  std::unique_ptr<Units> units_;

 public:
  // Makes the units; makes no call to the library.
  clsK70(controller::ControllerLibrary& library, Prompts& prompts,
         NamedMutexMaker makeMutex = MakeNamedMutex);

  // Creates the controller's root and lets it list its devices. A failure is shown; without a root
  // every later use of the controller fails in its own way.
  void Initialize();

  // Disconnects a connected device, without a box after a failure, and releases its name.
  ~clsK70();

  // The system name as last read or edited; a controller holds 15 characters of it.
  std::string SystemName;

  // The configuration units. References, so that who uses one of them depends on no other.
  clsNosepiece& curNosepiece;
  clsDbNosepiece& DbNosepiece;
  clsLimitation& curLimit;
  clsFilter& curFilter;
  clsDbFilter& dbFilter;
  clsDbExciter& Exciter;
  clsDbDichroic& Dichroic;
  clsDbBarrier& Barrier;
  clsCondenser& curCondenser;
  clsDbCondenser& dbcon;
  clsInterLockObservation& ILObservation;
  clsInterLockOther& ILOther;
  clsInterLockOffset& ILOffset;
  clsControlZDrive& CZDrive;
  clsControlXYDrive& CXYDrive;
  clsControlOther& COther;
  clsControlTactor& curTactor;
  clsDbSwitch& curSwitch;

  // Whether one of the three units of the interlocks is enabled.
  bool IsInterlockEnable() const;

  // Which sections of a settings file are present and wanted: -1 yes, 0 no. Positions 0 to 9;
  // others read 0 and store nothing.
  std::int16_t FileItem(std::int16_t pos) const;
  void FileItem(std::int16_t pos, std::int16_t value);

  // Takes the exclusive use of device `Name`, after releasing the one held before. False when
  // another process holds it. Raises error 52 when the system refuses the name.
  bool CreateConnectionName(const std::string& Name);
  void DeleteConnectionName();

  // Entries of the device list, simulator included; 0 after a failure, which is shown.
  std::int32_t DeviceCount();
  // Name of an entry; empty after a failure, which is shown.
  std::string DeviceName(std::int32_t index);

  // Connects entry `DeviceNo` of the device list, and detects controllers and accessories. A
  // negative number means entry 1; a list of one entry has its entry 0 connected, whatever the
  // number; a number beyond the list is a failure. If the device does not answer, the result is
  // false and lConnectDevice is -1. If the device answers, but detecting its accessories or turrets
  // fails, the result is true and lConnectDevice is -1.
  bool Connect(std::int32_t DeviceNo);
  void Disconnect();  // after a failure, which is shown, lConnectDevice keeps its value

  // Read all units from the controller, write them to it, and list what a write would change.
  // Failures of units are shown once, at the end; they end no transfer. Receive and Send answer
  // whether there were none.
  bool Receive();
  bool Send();
  std::string Modify();

  // By the name of a row of the transfers, or kSystemNameTransfer: whether the last Receive from
  // this device read it, and the last Send wrote it, without a failure, and whether a Send or
  // Modify would run through it now.
  bool WasRead(std::string_view transfer) const;
  bool WasSent(std::string_view transfer) const;
  bool IsSent(std::string_view transfer) const;

  // Look up the sections of a settings file, read the wanted ones, write all. What went wrong is
  // shown; reading and writing answer whether nothing did.
  void ReadXMLItems(const std::string& fname);
  // Leaves the document for ReadSections; false when the file cannot be loaded.
  bool ReadXMLItems(const std::string& fname, DomDocument& document);
  bool ReadXML(const std::string& fname);
  bool WriteXML(const std::string& fname);
  // The same on a document in memory; `name` is the file's in a box. Writing begins with section
  // `first` and raises a Failure for a text that XML cannot hold.
  void ReadItems(const DomDocument& document, const std::string& name);
  bool ReadSections(const DomDocument& document, const std::string& name);
  void WriteSections(DomDocument& document, std::size_t first = fileitem::kSystem) const;
  // The same for a file with the hand controller's section only.
  void Tactor_ReadXML(const std::string& fname);
  void Tactor_WriteXML(const std::string& fname);

  // The report of mounted and not mounted accessories for the user.
  std::string GetAccessories();

 private:
  // The count of a turret's addresses: 0 when the accessory is not mounted.
  struct Turret {
    std::int32_t accessory;
    std::string_view failureLabel;
    std::string_view transfer;  // that depends on the count
    // Members of units that store the count: the drives, too, keep that of the nosepiece.
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

  std::optional<std::vector<DomNode>> SectionsOf(const DomDocument& document,
                                                 const std::string& name);
  bool Load(const std::string& fname, DomDocument& document);
  std::string ReadSection(std::size_t fileItem, const DomNode& section);
  std::string ReadSystemElement(const DomNode& element);
  void WriteSection(std::size_t fileItem, DomDocument& document, DomNode& root) const;
  bool SaveSections(const std::string& fname, std::size_t first, std::string_view failureText);

  controller::ControllerLibrary& library_;
  std::array<std::int16_t, 10> fileItems_{};
  NamedMutexMaker makeMutex_;
  std::unique_ptr<clsMutex> mutex_;
  TransferTable transfers_;
  std::vector<std::string_view> readTransfers_;
  std::vector<std::string_view> sentTransfers_;
  FileTable fileTable_;
  std::array<Turret, 3> turrets_;
};

// The program's instance. ProvideK70 makes it without a call to the library, so that pages can be
// given their units; the first GetK70 initialises it. ReleaseK70 destroys it, after the windows,
// whose pages refer to it, and before the toolkit ends. Without an instance GetK70 raises error 91.
clsK70& ProvideK70(controller::ControllerLibrary& library, Prompts& prompts,
                   NamedMutexMaker makeMutex = MakeNamedMutex);
clsK70& GetK70();
void ReleaseK70();

}  // namespace mortane
