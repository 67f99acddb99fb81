// What the tests of the command line share: a drive, runs of the program on it, and its output.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

#include "Apps/trovex-cli/Cli.h"
#include "support/ExecutableBuilder.h"
#include "support/TestDisc.h"

namespace trovex::test {

class CliTest : public testing::Test {
 protected:
  using Json = nlohmann::json;

  enum class Terminal { kNo, kYes };

  // A path of the drive as an argument: UTF-8.
  std::string Argument(std::string_view path = {}) const {
    const std::u8string name = disc_.HostPath(path).u8string();
    return {name.begin(), name.end()};
  }

  // Runs the program with exactly these arguments; the result is its exit status.
  int RunWith(const std::vector<std::string>& arguments, Terminal terminal = Terminal::kNo) {
    std::ostringstream out, err;
    const int status = cli::Run(arguments, out, err, terminal == Terminal::kYes);
    out_ = out.str();
    err_ = err.str();
    return status;
  }

  // The same on the drive.
  int Run(std::vector<std::string> options, Terminal terminal = Terminal::kNo) {
    options.insert(options.begin(), Argument());
    return RunWith(options, terminal);
  }

  // The catalogue of the drive.
  Json Catalogue(std::vector<std::string> options = {}) {
    options.push_back("--json");
    EXPECT_EQ(Run(options), cli::kDone);
    EXPECT_EQ(err_, "");
    return Json::parse(out_);
  }

  // A command line that cannot be worked with: status 2, one line on standard error, nothing else.
  void ExpectWrong(const std::vector<std::string>& arguments, const std::string& complaint) {
    EXPECT_EQ(RunWith(arguments), cli::kWrongCommandLine);
    EXPECT_EQ(out_, "");
    EXPECT_THAT(err_, testing::StartsWith("trovex-cli: "));
    EXPECT_THAT(err_, testing::HasSubstr(complaint));
    EXPECT_EQ(err_.find('\n'), err_.size() - 1) << err_;
  }

  TestDisc disc_;
  std::string out_, err_;
};

}  // namespace trovex::test
