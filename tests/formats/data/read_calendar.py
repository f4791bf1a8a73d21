"""Prints the events of a calendar file, as another program reads them, and when each comes in two years."""
import sys
from datetime import datetime
from dateutil.rrule import rrulestr
from icalendar import Calendar

with open(sys.argv[1], "rb") as file:
    raw = file.read()
assert all(len(line) <= 75 for line in raw.split(b"\r\n")), "a long line"
for event in Calendar.from_ical(raw).walk("vevent"):
    start = datetime.combine(event["dtstart"].dt, datetime.min.time())
    rule = rrulestr(event["rrule"].to_ical().decode(), dtstart=start)
    days = [day.strftime("%Y-%m-%d") for day in rule.between(datetime(2023, 12, 1), datetime(2025, 12, 31))]
    print(event["uid"], event["summary"], *days, sep="|")
