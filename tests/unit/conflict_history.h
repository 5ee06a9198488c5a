// Taking back in the model of the rules: whole models, as they were before and after each step.
#pragma once

#include <cstddef>
#include <utility>
#include <vector>

#include "tests/unit/conflict_model.h"

namespace tessera::model {

class ModelHistory {
 public:
  [[nodiscard]] bool CanUndo() const { return made_ > 0; }
  [[nodiscard]] bool CanRedo() const { return made_ < steps_.size(); }

  /// No step that changed a command's keys lies between what was saved and what is there.
  [[nodiscard]] bool IsSaved() const {
    const std::size_t first = saved_ < made_ ? saved_ : made_;
    const std::size_t last = saved_ < made_ ? made_ : saved_;
    if (last > steps_.size()) return false;  // what was saved can be reached no more
    for (std::size_t step = first; step < last; ++step) {
      if (steps_[step].ChangedCommands) return false;
    }
    return true;
  }

  void Keep(const Model& before, const Model& after, bool changedCommands, bool selects) {
    if (!changedCommands && SlotKeys(before) == SlotKeys(after)) return;
    if (saved_ > made_) saved_ = IsSaved() ? made_ : Unreachable;
    steps_.resize(made_);
    steps_.push_back({before, after, changedCommands, selects});
    ++made_;
  }

  void Save() { saved_ = made_; }

  void Open() {
    steps_.clear();
    saved_ = made_ = 0;
  }

  void Undo(Model& model) {
    --made_;
    Restore(model, steps_[made_].Before, steps_[made_]);
  }

  void Redo(Model& model) {
    Restore(model, steps_[made_].After, steps_[made_]);
    ++made_;
  }

 private:
  static constexpr std::size_t Unreachable = static_cast<std::size_t>(-1);

  struct Step {
    Model Before, After;
    bool ChangedCommands, Selects;
  };

  static TextList SlotKeys(const Model& model) {
    TextList keys;
    for (const ModelSlot& slot : model.Slots) keys.push_back(slot.Key);
    return keys;
  }

  /// Keys and marks alone; not the order of the rows, nor what is in the file.
  static void Restore(Model& model, const Model& other, const Step& step) {
    model.Rows = other.Rows;
    model.Defaults = other.Defaults;
    model.Currents = other.Currents;
    model.Gifts = other.Gifts;
    for (std::size_t slot = 0; slot < model.Slots.size(); ++slot) {
      const bool wasDropped = model.Slots[slot].ValueName.empty();
      if (!wasDropped) model.Slots[slot] = other.Slots[slot];
    }
    if (step.Selects) model.Selected = other.Selected;
  }

  std::vector<Step> steps_;
  std::size_t made_ = 0;
  std::size_t saved_ = 0;
};

}  // namespace tessera::model
