// SPDX-License-Identifier: GPL-3.0-or-later
#include "ServerAddress.h"

#include "Bench.h"
#include "Files.h"

namespace tracewell {

TEST(ServerAddress, FileNamesOneServerOrIsAnErrorThatNamesIt) {
  const ProgramFolderCopy folder;
  const std::filesystem::path file = folder.path() / "server";
  const auto addressIn = [&](const std::string& text) -> std::string {
    writeWholeFile(file, text);
    try {
      return addressText(readServerAddress(file));
    } catch (const Error& error) {
      EXPECT_NE(error.description().find(pathText(file)), std::string::npos);
      return error.description().substr(0, error.description().find(':'));
    }
  };
  const std::pair<std::string, const char*> read[] = {
      {"tcp://bench-3:4001", "bench-3:4001"},
      {"\t tcp://a:1 \r\n\r\n", "a:1"},
      {"tcp://10.0.0.7:65535\n", "10.0.0.7:65535"},
      {"tcp://[fe80::1%eth0]:7", "[fe80::1%eth0]:7"}};
  for (const auto& [text, address] : read) EXPECT_EQ(addressIn(text), address);
  for (const char* text : {"",
                           "tcp",
                           "tcp://",
                           "tcp://a",
                           "tcp://:1",
                           "tcp://a:",
                           "tcp://a:0",
                           "tcp://a:65536",
                           "tcp://a:-1",
                           "tcp://a:1x",
                           "tcp://a:1/",
                           "tcp://a b:1",
                           "tcp://u@a:1",
                           "tcp://a/b:1",
                           "tcp://::1:7",
                           "tcp://[]:7",
                           "tcp://a:1\ntcp://b:2",
                           "TCP://a:1",
                           "http://a:1",
                           "\xEF\xBB\xBFtcp://a:1",
                           "tcp://b\xC3\xA4nk:1",
                           "tcp://a\x01:1"})
    EXPECT_EQ(addressIn(text), "Holds no address tcp") << text;
  EXPECT_EQ(addressIn("tcp://a:1" + std::string(1015, ' ')), "a:1");
  EXPECT_EQ(addressIn("tcp://a:1" + std::string(1016, ' ')), "Larger than the 1024 bytes allowed");
}

}  // namespace tracewell
