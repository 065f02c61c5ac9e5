#!/usr/bin/env python3
"""Runs `ferrow-cli --serve` on the simulated notebook and checks it from the outside.

Usage: prometheus_scrape.py FERROW_CLI scrape|promtool|robustness

  scrape      a real Prometheus scrapes it every second; its query API must return a plausible
              ferrow_system_power_watts after two scrapes.
  promtool    `promtool check metrics` accepts the scraped text, energy counters included.
  robustness  a 1 MB request and a client that sends nothing are dealt with, 100 connections at
              once are all served in turn, and the readings stay fresh.

Exits 77 (skipped) when prometheus or promtool is not installed. Every process it starts is
stopped on every way out, and the exporter must then exit cleanly (sanitizer builds report there).
"""

import json
import os
import shutil
import signal
import socket
import subprocess
import sys
import tempfile
import time
import urllib.parse
import urllib.request

SKIP = 77
children = []


def fail(message):
    raise SystemExit(f"FAIL: {message}")


def free_port():
    with socket.socket() as s:
        s.bind(("127.0.0.1", 0))
        return s.getsockname()[1]


def http_get(port, path="/metrics", timeout=5.0):
    with urllib.request.urlopen(f"http://127.0.0.1:{port}{path}", timeout=timeout) as response:
        return response.status, dict(response.headers), response.read().decode()


def raw_request(port, data, timeout=5.0):
    """Sends data as it stands and returns all the exporter answers until it closes."""
    with socket.create_connection(("127.0.0.1", port), timeout=timeout) as s:
        s.sendall(data)
        answer = b""
        while chunk := s.recv(65536):
            answer += chunk
        return answer.decode(errors="replace")


def wait_until(what, predicate, seconds):
    deadline = time.monotonic() + seconds
    while time.monotonic() < deadline:
        try:
            if predicate():
                return
        except OSError:
            pass
        time.sleep(0.2)
    fail(f"gave up waiting for {what}")


def sample(text, name):
    for line in text.splitlines():
        if line.startswith(name + " "):
            return float(line.split()[1])
    return None


def start_exporter(cli):
    port = free_port()
    exporter = subprocess.Popen([cli, "--source", "simulated", "--serve", f"127.0.0.1:{port}"],
                                stdout=subprocess.DEVNULL)
    children.append(exporter)
    wait_until("the exporter's first reading",
               lambda: sample(http_get(port, timeout=1)[2], "ferrow_system_power_watts") is not None, 20)
    return exporter, port


def check_scrape(port, scratch):
    prometheus = shutil.which("prometheus")
    web_port = free_port()
    config = os.path.join(scratch, "prometheus.yml")
    with open(config, "w") as f:
        f.write("global:\n  scrape_interval: 1s\n  scrape_timeout: 1s\n"
                f"scrape_configs:\n  - job_name: ferrow\n    static_configs:\n      - targets: ['127.0.0.1:{port}']\n")
    server = subprocess.Popen([prometheus, f"--config.file={config}", f"--storage.tsdb.path={scratch}/data",
                               f"--web.listen-address=127.0.0.1:{web_port}", "--log.level=error"],
                              stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    children.append(server)

    def query(expression):
        url = f"http://127.0.0.1:{web_port}/api/v1/query?query={urllib.parse.quote(expression)}"
        with urllib.request.urlopen(url, timeout=5) as response:
            return json.load(response)["data"]["result"]

    wait_until("two successful scrapes",
               lambda: (r := query('sum_over_time(up{job="ferrow"}[1m])')) and float(r[0]["value"][1]) >= 2, 60)
    result = query("ferrow_system_power_watts")
    if len(result) != 1:
        fail(f"expected one ferrow_system_power_watts series, got {result}")
    watts = float(result[0]["value"][1])
    if not 0.5 < watts < 200:
        fail(f"implausible system power {watts} W")
    print(f"Prometheus scraped ferrow_system_power_watts = {watts:.2f} W")


def check_promtool(port):
    promtool = shutil.which("promtool")
    # The energy counters need a second reading: lint them too.
    wait_until("the energy counters", lambda: "ferrow_system_energy_joules_total " in http_get(port, timeout=1)[2], 20)
    _, headers, text = http_get(port)
    if "# TYPE ferrow_system_energy_joules_total counter" not in text:
        fail("ferrow_system_energy_joules_total is not a counter")
    if headers.get("Content-Type") != "text/plain; version=0.0.4; charset=utf-8":
        fail(f"Content-Type is {headers.get('Content-Type')}")
    checked = subprocess.run([promtool, "check", "metrics"], input=text, capture_output=True, text=True)
    if checked.returncode != 0:
        fail(f"promtool check metrics:\n{checked.stdout}{checked.stderr}")
    print("promtool check metrics: no problems")


def check_robustness(port):
    for path, method, expected in [("/", "GET", "200 OK"), ("/x", "GET", "404"), ("/metrics", "POST", "405"),
                                   ("/metrics", "HEAD", "200 OK")]:
        answer = raw_request(port, f"{method} {path} HTTP/1.1\r\nHost: a\r\n\r\n".encode())
        if expected not in answer.split("\r\n")[0]:
            fail(f"{method} {path}: {answer[:80]!r}")
    if "Allow: GET, HEAD" not in raw_request(port, b"DELETE /metrics HTTP/1.1\r\n\r\n"):
        fail("405 without Allow")
    before = sample(http_get(port)[2], "ferrow_reading_timestamp_seconds")

    silent = socket.create_connection(("127.0.0.1", port))
    silent_since = time.monotonic()
    huge = raw_request(port, b"GET /metrics HTTP/1.1\r\nX-Pad: " + b"a" * 1_000_000 + b"\r\n\r\n", 10)
    if not huge.startswith("HTTP/1.1 431"):
        fail(f"1 MB request: {huge[:80]!r}")

    crowd = [socket.create_connection(("127.0.0.1", port), timeout=10) for _ in range(100)]
    answered = 0
    for s in crowd:
        try:
            s.sendall(b"GET /metrics HTTP/1.1\r\n\r\n")
            answered += s.recv(16).startswith(b"HTTP/1.1 200")
        except OSError:
            pass
        s.close()
    if answered != 100:
        fail(f"{answered} of 100 simultaneous connections were served; those over the limit must wait their turn")

    silent.settimeout(10)
    try:
        silent.recv(1)
    except OSError:
        pass  # a reset is as good as a close
    kept = time.monotonic() - silent_since
    silent.close()
    if not 4 < kept < 7:
        fail(f"a client that sent nothing was cut off after {kept:.1f} s")

    wait_until("/metrics after the crowd", lambda: http_get(port, timeout=2)[0] == 200, 10)
    after = sample(http_get(port)[2], "ferrow_reading_timestamp_seconds")
    if not after > before + 1:
        fail(f"readings stalled: {before} then {after}")
    print(f"1 MB request answered 431, all {answered} simultaneous connections served in turn, "
          f"a silent client cut off, readings went on ({after - before:.1f} s later)")


def stop(process):
    if process.poll() is None:
        process.send_signal(signal.SIGTERM)
        try:
            process.wait(15)
        except subprocess.TimeoutExpired:
            process.kill()
            process.wait()


def main():
    if len(sys.argv) != 3 or sys.argv[2] not in ("scrape", "promtool", "robustness"):
        sys.exit(__doc__)
    cli, check = sys.argv[1], sys.argv[2]
    tool = {"scrape": "prometheus", "promtool": "promtool"}.get(check)
    if tool and not shutil.which(tool):
        print(f"SKIP: {tool} is not installed (Debian: apt-get install prometheus; macOS: brew install prometheus)")
        sys.exit(SKIP)
    # CTest ends a test that runs too long with SIGTERM: clean up on that way out too.
    signal.signal(signal.SIGTERM, lambda *_: sys.exit("FAIL: terminated"))
    scratch = tempfile.mkdtemp(prefix="ferrow-metrics-")
    exporter = None
    try:
        exporter, port = start_exporter(cli)
        if check == "scrape":
            check_scrape(port, scratch)
        elif check == "promtool":
            check_promtool(port)
        else:
            check_robustness(port)
    finally:
        for child in reversed(children):
            stop(child)
        shutil.rmtree(scratch, ignore_errors=True)
    if exporter.returncode != 0:
        fail(f"the exporter exited with {exporter.returncode} on SIGTERM")


if __name__ == "__main__":
    main()
