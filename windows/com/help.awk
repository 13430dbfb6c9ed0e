# What the type library says of each member, for object browsers: the guide's tables of properties, methods and events, as
# C macros, NV_HELP_PayeeCity "City; up to 20". A member that the guide does not tell has no macro, and the IDL fails.
BEGIN { FS = " *[|] *" }
/^[|] (Property|Method|# [|] Event) / {
  for (text = NF; text > 0 && $text !~ /^(Meaning|What it does|What has happened)$/; --text);
  name = $2 == "#" ? 3 : 2
}
!/^[|]/ { text = 0 }
text && $name ~ /^`/ {
  help = $text
  gsub(/[`*]|\[|\]\([^)]*\)/, "", help) # the Markdown
  gsub(/[\\"]/, "\\\\&", help)
  count = split($name, names, /, /)
  for (i = 1; i <= count; ++i) {
    gsub(/`|\(.*/, "", names[i])
    print "#define NV_HELP_" names[i] " \"" help "\""
  }
}
