"""The trial program as the harness runs it: on a service that knows a few reports, with or without faults."""

import datetime
import http.server
import os
import pathlib
import re
import shutil
import subprocess
import threading
import urllib.parse

SALES = (
    "Provider\tSKU\tTitle\tProduct Type Identifier\tUnits\tDeveloper Proceeds\tBegin Date\tEnd Date\tCountry Code\t"
    "Currency of Proceeds\tApple Identifier\tCustomer Price\tCustomer Currency\n"
)
FINANCE = (
    "Start Date\tEnd Date\tVendor Identifier\tQuantity\tPartner Share\tExtended Partner Share\t"
    "Partner Share Currency\tSales or Return\tApple Identifier\tTitle\tCountry Of Sale\n"
)
RATES = b'{"result": "success", "rates": {"USD": 1, "EUR": 0.9, "JPY": 150}}'
# A zone in which the day has just begun, so that no run goes past midnight.
NOW = datetime.datetime.now(datetime.timezone.utc)
AHEAD = max(6 - NOW.hour, -12)
TODAY = (NOW + datetime.timedelta(hours=AHEAD)).date()


def month(back):
    """The label of a month that is over, so that its days don't depend on the hour."""
    number = TODAY.year * 12 + TODAY.month - 1 - back
    return f"{number // 12}-{number % 12 + 1:02}"


def sales_lines(date, edition, count):
    cell = "/".join([(date + "-01-01")[5:7], (date + "-01-01")[8:10], date[:4]])
    for number in range(count):
        seed = number * 7 + len(date) + edition * 3 + sum(map(ord, date))
        yield (
            f"APPLE\tsku{seed % 40}\tTitle {seed % 23} é\t{('1', 'IA1', '7', '3')[seed % 4]}\t{seed % 9 - 2}\t{seed % 31}.{seed % 97:02}\t"
            f"{cell}\t{cell}\t{('US', 'DE', 'JP')[seed % 3]}\t{('USD', 'EUR', 'JPY')[seed % 3]}\t{1000 + seed % 40}\t{seed % 50}\tUSD\n"
        )


def sales_body(date, edition):
    if len(date) == 10 and edition == 1 and date.endswith("-13"):
        return None
    many = date.endswith("-07")
    return SALES + "".join(sales_lines(date, edition, (3500 if edition == 2 else 900) if many else 4 + edition * 5))


def finance_body(period, edition):
    return FINANCE + "".join(
        f"01/01/2025\t01/31/2025\tsku{n}\t{n % 5 - 1}\t{n}.5\t{(n % 5 - 1) * n}.25\tEUR\tS\t{1000 + n}\tTitle {n}\tDE\n"
        for n in range(20 + edition)
    )


class Service:
    """Answers on a free port of 127.0.0.1; `edition` says which contents the reports have."""

    def __init__(self, edition):
        class Handler(http.server.BaseHTTPRequestHandler):
            protocol_version = "HTTP/1.1"
            wbufsize = -1
            disable_nagle_algorithm = True

            def do_GET(self):
                url = urllib.parse.urlsplit(self.path)
                query = dict(urllib.parse.parse_qsl(url.query))
                date = query.get("filter[reportDate]", "")
                body = RATES
                if url.path == "/v1/salesReports":
                    body = sales_body(date, edition)
                elif url.path == "/v1/financeReports":
                    body = finance_body(date, edition)
                if body is None:
                    body = b'{"errors": [{"detail": "There were no sales for the date specified."}]}'
                    self.send_response(404)
                else:
                    body = body if isinstance(body, bytes) else body.encode()
                    self.send_response(200)
                self.send_header("Content-Length", str(len(body)))
                self.end_headers()
                self.wfile.write(body)

            def log_message(self, *_):
                pass

        server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Handler)
        server.daemon_threads = True
        server.handle_error = lambda *_: None  # a program that was killed
        threading.Thread(target=server.serve_forever, daemon=True).start()
        self.origin = f"http://127.0.0.1:{server.server_address[1]}"


class Outcome:
    def __init__(self, code, output, errors):
        self.code, self.output = code, output
        lines = errors.strip().splitlines()
        self.reason = lines[-1] if lines else ""
        self.errors = errors

    @property
    def is_crash(self):
        return self.code not in (0, 1, 2, 3, 4, 5)


class Program:
    def __init__(self, binary, shim, scratch):
        self.binary, self.shim, self.scratch = str(binary), str(shim), pathlib.Path(scratch)
        self.services = [Service(edition) for edition in range(3)]
        libraries = subprocess.run(["ldd", self.binary], capture_output=True, text=True, check=True).stdout
        self.sanitizer = re.findall(r"=> (\S*libasan\S*)", libraries)
        self.environment = {
            "PATH": os.environ["PATH"],
            "HOME": str(scratch),
            "TZ": f"Etc/GMT{-AHEAD:+}",
            "LC_ALL": "C.UTF-8",
            "QT_QPA_PLATFORM": "offscreen",
            "ASAN_OPTIONS": "detect_leaks=0:exitcode=99",
            "UBSAN_OPTIONS": "exitcode=99",
        }

    def start(self, data, arguments, edition=0, fault=None, origin=None):
        environment = dict(self.environment)
        if fault is not None:
            environment["LD_PRELOAD"] = ":".join([*self.sanitizer, self.shim])
            environment["STORAGE_FOLDER"] = str(data)
            environment.update({"STORAGE_" + name.upper(): str(value) for name, value in fault.items()})
        command = [self.binary, "--once", "--data", str(data), "--pause", "0"]
        command += ["--service", origin or self.services[edition].origin, *arguments]
        return subprocess.Popen(
            command, env=environment, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.PIPE
        )

    def finish(self, process, seconds=240):
        try:
            output, errors = process.communicate(timeout=seconds)
        except subprocess.TimeoutExpired:
            process.kill()
            process.communicate()
            return Outcome("no end", "", "no end")
        return Outcome(process.returncode, output.decode(errors="replace"), errors.decode(errors="replace"))

    def run(self, data, arguments, edition=0, fault=None):
        return self.finish(self.start(data, arguments, edition, fault))


def copied(source, target):
    shutil.rmtree(target, ignore_errors=True)
    shutil.copytree(source, target)
    return target
