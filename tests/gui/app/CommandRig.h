// A started main window with fake pages, for the tests of its commands.
#pragma once

#include <QAction>
#include <QTest>
#include <QToolBar>
#include <algorithm>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "AppRig.h"
#include "support/Rows.h"
#include "widgets/CommandKey.h"

namespace mortane::test {

// The log without the steps of the progress.
inline Lines Calls(const ScriptedPrompts& prompts) {
  Lines calls;
  std::copy_if(prompts.Log().begin(), prompts.Log().end(), std::back_inserter(calls),
               [](const std::string& line) { return !line.starts_with("progress"); });
  return calls;
}

// A started window with six fakes.
struct CommandRig {
  explicit CommandRig(Bench bench = benches::Named("Harbour"), Lines arguments = {})
      : app(std::move(bench), std::move(arguments), fakes.Table()) {
    app.Start();
    fakes.calls.clear();
  }
  MortaneMainForm& form() { return *app.form; }
  void Tool(int position) {
    QAction* button = form().Toolbar1->actions()[position - 1];
    QTest::mouseClick(form().Toolbar1->widgetForAction(button), Qt::LeftButton);
  }
  void Key(std::size_t index) { QTest::mouseClick(form().ImageCommand[index], Qt::LeftButton); }

  FakePages fakes;
  AppRig app;
};

}  // namespace mortane::test
