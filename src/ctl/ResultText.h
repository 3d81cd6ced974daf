// The answers of the commands as text for a person.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "ctl/Results.h"

namespace mortane::ctl {

// Whole lines, each name and value fit for a terminal.
class ResultText {
 public:
  ResultText(std::ostream& out, bool colour) : out_(out), colour_(colour) {}

  void Write(const std::vector<DeviceRow>& devices);
  void Write(const ComparisonResult& result);
  // What follows the comparison, which was shown before.
  void WriteSent(const SendResult& result);
  void Write(const std::vector<BackupRow>& backups);
  void Write(const CheckedFile& file);
  // One line a change, with the time of day in front.
  void WriteWatched(const std::string& time, const ComparisonResult& changes);

 private:
  std::string Painted(const char* colour, const std::string& text) const;
  void Heading(const std::string& text);
  void Lines(const std::string& heading, const std::vector<std::string>& lines);
  void Items(const std::string& heading, const std::vector<NamedItem>& items);
  void Changes(const std::string& heading, const std::vector<NamedChange>& changes);
  std::string ChangeLine(const NamedChange& change) const;

  std::ostream& out_;
  bool colour_;
};

}  // namespace mortane::ctl
