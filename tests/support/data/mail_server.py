"""A mail server for tests, on a port of this computer that it prints; and a second opinion about messages.

    mail_server.py serve FOLDER [tls|starttls CERTIFICATE KEY]
    mail_server.py read FILE

What it accepts it writes to FOLDER, a JSON file each. The local part of a recipient says how it behaves:
refused@ is refused for good, later@ the first time only, heavy@ after the whole message, dies@ closes the line
after the whole message, slow@ and lost@ never answer to the whole message, but a slow@ one is taken.
"""
import asyncio
import email
import email.policy
import hashlib
import json
import os
import ssl
import sys
import warnings

from aiosmtpd.smtp import AuthResult, SMTP

warnings.simplefilter("ignore")


def opinion(raw):
    message = email.message_from_bytes(raw, policy=email.policy.default)
    text = message.get_body(("plain",))
    html = message.get_body(("html",))
    known = {key.lower() for key in message.keys()}
    return {
        "headers": sorted(known),
        "from": str(message["From"]),
        "to": str(message["To"]),
        "cc": str(message["Cc"]),
        "bcc": str(message["Bcc"]),
        "subject": str(message["Subject"]),
        "date": str(message["Date"]),
        "id": str(message["Message-ID"]),
        "unsent": str(message["X-Unsent"]),
        "text": text.get_content().replace("\r\n", "\n") if text else "",
        "html": html.get_content().replace("\r\n", "\n") if html else "",
        "attachments": [
            [part.get_filename(), part.get_content_type(), hashlib.sha256(part.get_payload(decode=True)).hexdigest()]
            for part in message.iter_attachments()
        ],
        "defects": [str(defect) for part in message.walk() for defect in part.defects],
        "longestLine": max((len(line) for line in raw.split(b"\r\n")), default=0),
        "bareLineEnds": raw.count(b"\n") - raw.count(b"\r\n") + raw.count(b"\r") - raw.count(b"\r\n"),
    }


class Handler:
    def __init__(self, folder):
        self.folder = folder
        self.count = 0
        self.seen = set()

    async def handle_RCPT(self, server, session, envelope, address, options):
        if address.startswith("refused@"):
            return "550 No such person here"
        if address.startswith("later@") and address not in self.seen:
            self.seen.add(address)
            return "451 Come back later"
        envelope.rcpt_tos.append(address)
        return "250 OK"

    async def handle_DATA(self, server, session, envelope):
        words = {address.split("@")[0] for address in envelope.rcpt_tos}
        if "heavy" in words:
            return "554-Your message\r\n554 is not liked"
        if "dies" in words or "lost" in words:
            if "lost" in words:
                await asyncio.sleep(60)
            server.transport.abort()
            return "250 never heard"
        self.count += 1
        found = opinion(envelope.original_content)
        found["sender"] = envelope.mail_from
        found["recipients"] = envelope.rcpt_tos
        found["login"] = session.authenticated
        found["encrypted"] = server.transport.get_extra_info("ssl_object") is not None
        draft = os.path.join(self.folder, ".draft")
        with open(draft, "w") as file:
            json.dump(found, file)
        os.rename(draft, os.path.join(self.folder, "%05d.json" % self.count))
        if "slow" in words:
            await asyncio.sleep(60)
        return "250 Taken as %d" % self.count


def judge(server, session, envelope, mechanism, data):
    good = data.login == b"asha" and data.password == "se&crété".encode()
    return AuthResult(success=good, handled=False)


async def serve(folder, kind, certificate, key):
    context = None
    if certificate:
        context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
        context.load_cert_chain(certificate, key)
    handler = Handler(folder)

    def connection():
        return SMTP(
            handler,
            authenticator=judge,
            auth_require_tls=bool(certificate) and kind == "starttls",
            auth_required=bool(certificate),
            tls_context=context if kind == "starttls" else None,
            require_starttls=kind == "starttls",
            hostname="test.example",
        )

    loop = asyncio.get_running_loop()
    server = await loop.create_server(connection, "127.0.0.1", 0, ssl=context if kind == "tls" else None)
    print(server.sockets[0].getsockname()[1], flush=True)
    # It ends with the test, however that ends.
    await loop.run_in_executor(None, sys.stdin.read)
    os._exit(0)


if sys.argv[1] == "read":
    with open(sys.argv[2], "rb") as file:
        print(json.dumps(opinion(file.read())))
else:
    arguments = sys.argv[2:] + [""] * 4
    asyncio.run(serve(*arguments[:4]))
