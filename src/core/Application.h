#pragma once

namespace gustline {

class ProcessState;
class ApplicationView;
class Prompt;
class Settings;
class ReportHook;

// Everything a command of the program works with, passed by reference.
struct Application {
  ProcessState& state;
  ApplicationView& view;
  Prompt& prompt;
  Settings& settings;
  ReportHook& report;
};

}  // namespace gustline
