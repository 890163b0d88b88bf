#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <memory>
#include <string>

namespace gustline::testing {

// The one QApplication of a test program, made on first use and destroyed when the tests
// end. A function-local static one would die in the exit handlers, after Qt's own globals
// (the list of input devices among them), and the devices it owns would crash unregistering.
class TestApplication : public ::testing::Environment {
 public:
  explicit TestApplication(std::string name) : name_(std::move(name)) {}
  void Ensure() {
    if (QCoreApplication::instance() == nullptr)
      application_ = std::make_unique<QApplication>(argc_, argv_);
  }
  void TearDown() override { application_.reset(); }

 private:
  std::string name_;
  int argc_ = 1;
  char* argv_[2] = {name_.data(), nullptr};
  std::unique_ptr<QApplication> application_;
};

// Makes the application on the first call; gtest tears it down with its environments.
inline void EnsureTestApplication(const char* name) {
  static auto* const environment =
      static_cast<TestApplication*>(::testing::AddGlobalTestEnvironment(new TestApplication(name)));
  environment->Ensure();
}

}  // namespace gustline::testing
