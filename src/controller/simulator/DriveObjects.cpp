#include "controller/simulator/DriveObjects.h"

#include <optional>
#include <string_view>

#include "controller/simulator/AccessoryObjects.h"
#include "controller/simulator/DriveRows.h"

namespace mortane::controller {
namespace {

void Store(const DeviceLink& link, std::int32_t& field, const Value& value) {
  link.Assign(field, LongArgument(value));
}

void Store(const DeviceLink& link, std::int16_t& field, const Value& value) {
  link.Assign(field, IntegerArgument(value));
}

template <typename Drive, typename Number>
void AddField(MemberTable<DeviceLink>& table, int number, Drive Instrument::*drive,
              std::string_view member, Number Drive::*field, Access access) {
  if (access != Access::Order) {
    table.OnGet(member, 0, [number, drive, field](const DeviceLink& link, Args) -> Value {
      return link.Fitted(number).*drive.*field;
    });
  }
  if (access != Access::Read) {
    table.OnPut(member, 0,
                [number, drive, field, access](const DeviceLink& link, const Value& value, Args) {
                  Instrument& device =
                      access == Access::Order ? Commanded(link, number) : link.Fitted(number);
                  Store(link, device.*drive.*field, value);
                });
  }
}

template <typename Drive, std::size_t Count>
void AddFields(MemberTable<DeviceLink>& table, int number, Drive Instrument::*drive,
               const std::array<DriveRow<Drive>, Count>& rows) {
  for (const DriveRow<Drive>& row : rows) {
    AddField(table, number, drive, row.member, row.field, row.access);
  }
}

// The fields of a drive that one axis uses.
struct AxisField {
  std::int32_t& position;
  std::optional<std::int32_t> lowest;
  std::optional<std::int32_t> highest;
  std::int32_t speed;
};

AxisField FieldOf(Instrument& device, Axis axis) {
  ZDriveData& z = device.zDrive;
  XYDriveData& xy = device.xyDrive;
  if (axis == Axis::Z) return {z.position, z.lowestPosition, z.highestPosition, z.speed};
  if (axis == Axis::X) return {xy.positionX, xy.lowestX, xy.highestX, xy.speed};
  return {xy.positionY, xy.lowestY, xy.highestY, xy.speed};
}

// The bench holds the position of an axis at rest, so it is set when a move has ended.
void Arrive(const DeviceLink& link, Axis axis) {
  AxisMotion& motion = link.Session().Motion(axis);
  motion.Stop();
  link.Assign(FieldOf(link.Device(), axis).position, motion.Target());
}

std::int32_t CurrentPosition(const DeviceLink& link, Axis axis) {
  AxisMotion& motion = link.Session().Motion(axis);
  const std::int64_t now = link.State().clock->Now();
  if (motion.IsMoving() && now < motion.EndMs()) return motion.PositionAt(now);
  if (motion.IsMoving()) Arrive(link, axis);
  return FieldOf(link.Device(), axis).position;
}

void MoveTo(const DeviceLink& link, Axis axis, std::int32_t target) {
  const AxisField field = FieldOf(link.Device(), axis);
  if (target < field.lowest.value_or(target) || target > field.highest.value_or(target)) {
    RaiseSimulated("The drive does not travel to " + std::to_string(target) + ".");
  }
  AxisMotion& motion = link.Session().Motion(axis);
  motion.Start(CurrentPosition(link, axis), target, field.speed, link.State().clock->Now());
  if (!link.Session().asynchronous) Arrive(link, axis);
}

void AddAxis(MemberTable<DeviceLink>& table, int number, std::string_view member, Axis axis) {
  table
      .OnGet(member, 0,
             [number, axis](const DeviceLink& link, Args) -> Value {
               link.Fitted(number);
               return MakeStateValue(link, number, CurrentPosition(link, axis));
             })
      .OnPut(member, 0, [number, axis](const DeviceLink& link, const Value& value, Args) {
        Commanded(link, number);
        MoveTo(link, axis, LongArgument(value));
      });
}

MemberTable<DeviceLink> ZMembers() {
  MemberTable<DeviceLink> table;
  AddAccessoryState(table, accessory::kZFocusDrive);
  AddFields(table, accessory::kZFocusDrive, &Instrument::zDrive, kZRows);
  AddAxis(table, accessory::kZFocusDrive, "Position", Axis::Z);
  return table;
}

MemberTable<DeviceLink> XYMembers() {
  MemberTable<DeviceLink> table;
  AddAccessoryState(table, accessory::kXYStage);
  AddFields(table, accessory::kXYStage, &Instrument::xyDrive, kXYRows);
  AddField(table, accessory::kXYStage, &Instrument::xyDrive, "HandleMode", &XYDriveData::handleMode,
           Access::Both);
  AddAxis(table, accessory::kXYStage, "PositionX", Axis::X);
  AddAxis(table, accessory::kXYStage, "PositionY", Axis::Y);
  return table;
}

}  // namespace

ObjectRef MakeZDrive(const DeviceLink& link) {
  static const MemberTable<DeviceLink> members = ZMembers();
  return MakeObject(members, link);
}

ObjectRef MakeXYDrive(const DeviceLink& link) {
  static const MemberTable<DeviceLink> members = XYMembers();
  return MakeObject(members, link);
}

void FinishMoves(const DeviceLink& link) {
  for (const Axis axis : {Axis::Z, Axis::X, Axis::Y}) {
    const AxisMotion& motion = link.Session().Motion(axis);
    if (!motion.IsMoving()) continue;
    link.State().clock->WaitUntil(motion.EndMs());
    Arrive(link, axis);
  }
}

}  // namespace mortane::controller
