// kesto completion SHELL: the completion script of a shell on standard output.
#include <iostream>
#include <memory>

#include "cli/cli_session.h"
#include "cli/command_table.h"
#include "cli/shell_completion.h"

void installShellCompletionCommand(CLI::App& command, CliSession&) {
  auto shell = std::make_shared<std::string>();
  command.add_option("shell", *shell, "The shell")->required()->check(CLI::IsMember(completionShells()));
  command.footer(
      "bash: kesto completion bash > ~/.local/share/bash-completion/completions/kesto\n"
      "zsh:  kesto completion zsh > ~/.zfunc/_kesto (a directory on $fpath)\n"
      "fish: kesto completion fish > ~/.config/fish/completions/kesto.fish");
  command.callback([shell] { std::cout << completionScript(commandReference(), *shell); });
}
