// Functions of the model of a page, whichever that is.
#pragma once

#include <concepts>
#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>

#include "gui/support/UnitPageRig.h"

namespace mortane::test {

template <typename Type, typename Own>
concept OtherThan = !std::same_as<std::remove_cvref_t<Type>, Own>;

// Made of a function of clsK70 or of an area's units; it may be called with that model only.
template <typename Result>
class ModelFunction {
 public:
  ModelFunction() = default;
  template <OtherThan<ModelFunction> Function>
  ModelFunction(Function function) : function_(Erased(std::function(std::move(function)))) {}

  Result operator()(ConnectedMicroscope& model) const { return function_(model); }

 private:
  template <typename Given, typename Model>
  static std::function<Result(ConnectedMicroscope&)> Erased(std::function<Given(Model&)> function) {
    return [function = std::move(function)](ConnectedMicroscope& model) -> Result {
      return static_cast<Result>(function(static_cast<Model&>(model)));
    };
  }

  std::function<Result(ConnectedMicroscope&)> function_;
};

// Makes a page on its model, and the rig that has such a model.
class PageMaker {
 public:
  PageMaker() = default;
  template <OtherThan<PageMaker> Function>
  PageMaker(Function function) : page_(function), rig_(RigOf(std::function(function))) {}

  Page* operator()(ConnectedMicroscope& model) const { return page_(model); }
  std::unique_ptr<PageWindow> Rig(Bench bench, Link link) const {
    return rig_(std::move(bench), link);
  }

 private:
  using MakeRig = std::function<std::unique_ptr<PageWindow>(Bench, Link)>;

  template <typename Given, typename Model>
  static MakeRig RigOf(const std::function<Given(Model&)>& /*function*/) {
    return [](Bench bench, Link link) -> std::unique_ptr<PageWindow> {
      return std::make_unique<typename PageRigOf<Model>::Type>(std::move(bench), link);
    };
  }

  ModelFunction<Page*> page_;
  MakeRig rig_;
};

}  // namespace mortane::test
