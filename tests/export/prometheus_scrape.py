#!/usr/bin/env python3
"""Runs `ferrow-cli --serve` on the simulated notebook and checks it from the outside.

Usage: prometheus_scrape.py FERROW_CLI scrape|promtool|robustness|load

  scrape      a real Prometheus scrapes it every second; its query API must return a plausible
              ferrow_system_power_watts after two scrapes.
  promtool    `promtool check metrics` accepts the scraped text, energy counters included.
  robustness  a 1 MB request and a client that sends nothing are dealt with, 100 connections at
              once are all served in turn, and the readings stay fresh.
  load        ab (apache2-utils) sends 10,000 scrapes, 50 at a time: none may fail, the exporter's
              resident memory must stay flat, and its readings must keep their once-a-second pace.

Exits 77 (skipped) when prometheus, promtool or ab is not installed. Every process it starts is
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
import threading
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


def start_exporter(cli, environment=None):
    port = free_port()
    exporter = subprocess.Popen([cli, "--source", "simulated", "--serve", f"127.0.0.1:{port}"],
                                stdout=subprocess.DEVNULL, env=environment)
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


def resident_kib(pid):
    return int(subprocess.run(["ps", "-o", "rss=", "-p", str(pid)], capture_output=True, text=True, check=True).stdout)


def run_ab(port, requests):
    # -l: the text's length changes with the readings, which ab would otherwise count as failures.
    done = subprocess.run([shutil.which("ab"), "-l", "-r", "-s", "30", "-n", str(requests), "-c", "50",
                           f"http://127.0.0.1:{port}/metrics"], capture_output=True, text=True, timeout=100)
    figures = {}
    for line in done.stdout.splitlines():
        key, _, value = line.partition(":")
        if value.split():
            figures.setdefault(key.strip(), value.split()[0])  # the first "Time per request" is per client
    if (done.returncode != 0 or figures.get("Complete requests") != str(requests) or figures.get("Failed requests") != "0"
            or "Write errors" in figures or "Non-2xx responses" in figures):
        fail(f"ab -n {requests} -c 50:\n{done.stdout}{done.stderr}")
    return figures


def check_load(exporter, port):
    run_ab(port, 2000)  # the allocator's and Qt's first-use setup comes before the figure to compare
    before = resident_kib(exporter.pid)
    ages, errors = [], []
    finished = threading.Event()

    def watch():
        while not finished.is_set():
            try:
                text = http_get(port, timeout=10)[2]
            except OSError as error:
                errors.append(error)
                return
            ages.append(time.time() - sample(text, "ferrow_reading_timestamp_seconds"))
            time.sleep(0.1)

    watcher = threading.Thread(target=watch)
    watcher.start()
    try:
        figures = run_ab(port, 10000)
    finally:
        finished.set()
        watcher.join()
    after = resident_kib(exporter.pid)
    if errors:
        fail(f"a scrape beside ab failed: {errors[0]}")
    # A reading a second: a scrape never finds one two seconds old unless one was late or missed.
    if not ages or max(ages) >= 2:
        fail(f"readings under load were up to {max(ages, default=0):.1f} s old")
    if after - before > 4096:
        fail(f"resident memory grew from {before} KiB to {after} KiB over 10,000 scrapes")
    print(f"ab: 10,000 scrapes, 50 at a time, none failed: {figures['Requests per second']} per second, "
          f"{figures['Time per request']} ms each; resident memory {before} KiB before, {after} KiB after; "
          f"readings at most {max(ages):.2f} s old in {len(ages)} scrapes meanwhile")


def stop(process):
    if process.poll() is None:
        process.send_signal(signal.SIGTERM)
        try:
            process.wait(15)
        except subprocess.TimeoutExpired:
            process.kill()
            process.wait()


def main():
    if len(sys.argv) != 3 or sys.argv[2] not in ("scrape", "promtool", "robustness", "load"):
        sys.exit(__doc__)
    cli, check = sys.argv[1], sys.argv[2]
    tool, install = {"scrape": ("prometheus", "apt-get install prometheus; macOS: brew install prometheus"),
                     "promtool": ("promtool", "apt-get install prometheus; macOS: brew install prometheus"),
                     "load": ("ab", "apt-get install apache2-utils")}.get(check, (None, None))
    if tool and not shutil.which(tool):
        print(f"SKIP: {tool} is not installed (Debian: {install})")
        sys.exit(SKIP)
    # CTest ends a test that runs too long with SIGTERM: clean up on that way out too.
    signal.signal(signal.SIGTERM, lambda *_: sys.exit("FAIL: terminated"))
    scratch = tempfile.mkdtemp(prefix="ferrow-metrics-")
    exporter = None
    try:
        environment = None
        if check == "load":
            # AddressSanitizer's quarantine holds back up to 256 MB of freed memory, which would hide
            # whether the exporter's own stays flat; other builds ignore the option.
            options = [os.environ.get("ASAN_OPTIONS", ""), "quarantine_size_mb=1"]
            environment = dict(os.environ, ASAN_OPTIONS=":".join(filter(None, options)))
        exporter, port = start_exporter(cli, environment)
        if check == "scrape":
            check_scrape(port, scratch)
        elif check == "promtool":
            check_promtool(port)
        elif check == "load":
            check_load(exporter, port)
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
