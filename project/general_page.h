// The General page as a presenter: the eight "General" options, the auto-save
// period's check, and their writing when the page is stored.
#pragma once

#include "project/general_options.h"
#include "project/option_page.h"

class GeneralPage : public OptionPage {
 public:
  // The options are borrowed for the page's life; storing writes them to the settings.
  explicit GeneralPage(GeneralOptions& options) : options_(options) {}

  std::vector<PageControl> controls() override;
  void show() override { fields_ = options_; }
  bool check() override { return checkAutoSavePeriod(fields_.timerCount); }
  void store() override;

 private:
  GeneralOptions& options_;
  GeneralOptions fields_;
};
