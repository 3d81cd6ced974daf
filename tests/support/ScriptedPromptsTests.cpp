#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <memory>

#include "support/ScriptedPrompts.h"

namespace mortane {
namespace {

TEST(ScriptedPrompts, AnswersAsScriptedAndInOrder) {
  ScriptedPrompts prompts;
  prompts.ExpectBox("first", 4, Answer::No);
  prompts.ExpectBox("second", 33, Answer::Ok, "Caption");
  prompts.ExpectFileToOpen("/some.xml");
  EXPECT_EQ(prompts.MsgBox("first", 4), Answer::No);
  EXPECT_EQ(prompts.AskFileToOpen({}), "/some.xml");
  EXPECT_EQ(prompts.MsgBox("second", 33, "Caption"), Answer::Ok);
  EXPECT_TRUE(prompts.AllAnswersUsed());
}

TEST(ScriptedPrompts, FailsOnAQuestionThatNobodyScripted) {
  ScriptedPrompts prompts;
  EXPECT_NONFATAL_FAILURE(prompts.MsgBox("surprise", 0), "nobody scripted: box 0: surprise");
  EXPECT_NONFATAL_FAILURE(prompts.AskFileToSave({}), "nobody scripted a file to save");
}

TEST(ScriptedPrompts, FailsOnAnotherTextStyleOrCaption) {
  for (const ScriptedPrompts::Box& box :
       {ScriptedPrompts::Box{"other", 0, "", 0}, ScriptedPrompts::Box{"text", 16, "", 0},
        ScriptedPrompts::Box{"text", 0, "Caption", 0}}) {
    ScriptedPrompts prompts;
    prompts.ExpectBox("text", 0);
    EXPECT_NONFATAL_FAILURE(prompts.MsgBox(box.text, box.style, box.caption),
                            "another box was scripted");
  }
}

TEST(ScriptedPrompts, FailsOnAnAnswerThatNobodyAskedFor) {
  auto prompts = std::make_unique<ScriptedPrompts>();
  prompts->ExpectBox("text", 0);
  EXPECT_FALSE(prompts->AllAnswersUsed());
  EXPECT_NONFATAL_FAILURE(prompts.reset(), "nobody asked: box 0: text");
}

TEST(ScriptedPrompts, FailsOnAPointerRestoredTwice) {
  ScriptedPrompts prompts;
  prompts.SetPointer(Pointer::Hourglass);
  prompts.SetPointer(Pointer::Default);
  EXPECT_NONFATAL_FAILURE(prompts.SetPointer(Pointer::Default), "nobody had set");
}

}  // namespace
}  // namespace mortane
