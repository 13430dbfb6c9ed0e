#!/usr/bin/python3
"""Writes the sample list of countries, as it is before it is enciphered: the countries of ISO 3166 with their two-letter
codes (Debian's iso-codes) and telephone codes (phonenumbers; empty where there is none), in the ANSI code page. A heading
stands first, a value by itself.

    countries.py FILE
"""
import json
import sys

import phonenumbers


def field(text):
    return f'"{text}"' if "," in text else text


with open("/usr/share/iso-codes/json/iso_3166-1.json", encoding="utf-8") as file:
    countries = json.load(file)["3166-1"]

lines = ["Countries"]
for country in sorted(countries, key=lambda country: country["name"]):
    code = country["alpha_2"]
    telephone = phonenumbers.country_code_for_region(code)
    lines.append(f"{field(country['name'])},{code},{telephone or ''}")

with open(sys.argv[1], "w", encoding="windows-1252", newline="\r\n") as file:
    file.write("\n".join(lines) + "\n")
