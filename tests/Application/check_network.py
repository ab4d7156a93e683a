#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""check_network.py has|lacks PROGRAM: whether a program carries a client for the network and the address it asks."""

import re
import subprocess
import sys

# What only a client for the network uses; the socket by which a second start finds the first is none.
SYMBOLS = re.compile(r"\b(QNetwork\w+|QTcp\w+|QUdp\w+|QHost\w+|QSsl\w+|QDns\w+|QAbstractSocket|curl_\w+|getaddrinfo)\b")
TEXTS = ["NetworkHttpClient", "HttpTransfer", "CurlLibrary", "curl_easy", "curl_multi", "libcurl", "version.json"]


def printed(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def traces(program):
    libraries = re.findall(r"NEEDED.*\[(.*)\]", printed("readelf", "-d", program))
    yield from (library for library in libraries if "curl" in library)
    undefined = printed("nm", "--dynamic", "--undefined-only", "--demangle", program)
    yield from sorted(set(SYMBOLS.findall(undefined)))
    with open(program, "rb") as file:
        content = file.read()
    for text in TEXTS:
        if text.encode() in content or text.encode("utf-16-le") in content:
            yield text


def main(wanted, program):
    found = list(traces(program))
    if wanted == "lacks" and found:
        return f"{program} should know nothing of a network, but has: {', '.join(found)}"
    missing = {"QNetworkProxyFactory", "curl_easy", "CurlLibrary", "version.json"} - set(found)
    if wanted == "has" and missing:
        return f"{program} should look for updates, but lacks: {', '.join(sorted(missing))}"
    return 0


sys.exit(main(*sys.argv[1:]))
