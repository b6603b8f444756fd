# The game on the machine of machine.sh. Sourced, not run.

# register_game FOLDER: enters the game into the registry as its own 32-bit installer does.
#   FOLDER  as Windows sees it, without a backslash at its end.
register_game() {
  local folder=${1//\\/\\\\}
  write_registry '[HKEY_LOCAL_MACHINE\SOFTWARE\Wow6432Node\Microsoft\Windows\CurrentVersion\Uninstall\{7A3C51E2-94D0-4B6F-A1C8-2E5D90F4B317}_is1]
"InstallLocation"="'"$folder"'\\"
"Publisher"="Gloamworks"
"DisplayVersion"="2.1"
"Contact"="support@gloamworks.example"'
}
