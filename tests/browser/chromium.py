"""A browser without a window, driven through a pipe."""

import base64
import fcntl
import json
import os
import pathlib
import subprocess
import tempfile
import time

PATIENCE = 120


class Chromium:
    """A browser with one page. It ends with the context."""

    def __init__(self, program):
        self.profile = tempfile.TemporaryDirectory()
        commands, self.commands = os.pipe()
        self.answers, answers = os.pipe()

        def place():
            """The browser reads from descriptor 3 and writes to 4."""
            ends = [fcntl.fcntl(end, fcntl.F_DUPFD, 10) for end in (commands, answers)]
            os.dup2(ends[0], 3)
            os.dup2(ends[1], 4)

        self.process = subprocess.Popen(
            [program, '--headless=new', '--no-sandbox', '--disable-gpu', '--disable-dev-shm-usage', '--no-first-run',
             '--disable-background-networking', '--hide-scrollbars', '--remote-debugging-pipe', f'--user-data-dir={self.profile.name}'],
            preexec_fn=place, close_fds=False, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(commands)
        os.close(answers)
        self.rest, self.number, self.session = b'', 0, None

    def __enter__(self):
        target = self.call('Target.createTarget', url='about:blank')['targetId']
        self.session = self.call('Target.attachToTarget', targetId=target, flatten=True)['sessionId']
        self.call('Page.enable')
        return self

    def __exit__(self, *_):
        self.process.terminate()
        try:
            self.process.wait(PATIENCE)
        except subprocess.TimeoutExpired:
            self.process.kill()
            self.process.wait()
        for pipe in (self.commands, self.answers):
            os.close(pipe)
        self.profile.cleanup()

    def read(self):
        while b'\0' not in self.rest:
            piece = os.read(self.answers, 1 << 20)
            if not piece:
                raise RuntimeError('the browser ended')
            self.rest += piece
        message, self.rest = self.rest.split(b'\0', 1)
        return json.loads(message)

    def call(self, method, **parameters):
        self.number += 1
        message = {'id': self.number, 'method': method, 'params': parameters}
        if self.session:
            message['sessionId'] = self.session
        os.write(self.commands, json.dumps(message).encode() + b'\0')
        while True:
            answer = self.read()
            if answer.get('id') == self.number:
                if 'error' in answer:
                    raise RuntimeError(f'{method}: {answer["error"]["message"]}')
                return answer['result']
            # An event of the page.

    def show(self, page, width, height, scheme):
        """Opens a file on a screen of that size, light or dark."""
        self.call('Emulation.setDeviceMetricsOverride', width=width, height=height, deviceScaleFactor=1, mobile=width < 500)
        self.call('Emulation.setEmulatedMedia', media='', features=[{'name': 'prefers-color-scheme', 'value': scheme}])
        self.call('Page.navigate', url=pathlib.Path(page).resolve().as_uri())
        end = time.monotonic() + PATIENCE
        while self.evaluate('document.readyState + location.protocol') != 'completefile:':
            if time.monotonic() > end:
                raise RuntimeError(f'{page} is not loaded')

    def evaluate(self, expression):
        answer = self.call('Runtime.evaluate', expression=expression, awaitPromise=True, returnByValue=True)
        if 'exceptionDetails' in answer:
            raise RuntimeError(answer['exceptionDetails']['exception'].get('description', answer['exceptionDetails']['text']))
        return answer['result'].get('value')

    def picture(self, path):
        pathlib.Path(path).write_bytes(base64.b64decode(self.call('Page.captureScreenshot')['data']))

    def sheets(self, path):
        """Prints the page as a person would who changes no setting, on A4."""
        printed = self.call('Page.printToPDF', preferCSSPageSize=True, paperWidth=8.27, paperHeight=11.69)
        pathlib.Path(path).write_bytes(base64.b64decode(printed['data']))
