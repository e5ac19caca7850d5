"""The start up to the tray icon, its memory, and a key in the calculator, each beside a bare counterpart."""
from bench_memory import private_kb
from driver import paths
from driver.stage import Stage
from driver.tray import Tray
from driver.waiting import poll

STARTS = 8


def start_cpu(prefix):
    """Milliseconds of CPU for a start up to the tray icon, and for a bare one; the splash's two seconds are idle."""
    own = bare = 0.0
    for _ in range(STARTS):
        own += prefix.cpu('start')
        bare += prefix.cpu('start-bare')
    return own / STARTS * 1000, bare / STARTS * 1000


def start_memory():
    """Private memory once the icon stands, before any EAGLE is there, and that of a bare program with an icon."""
    with Stage('win32', paths.BUILD / 'bench') as stage:
        stage.prefix.put([paths.built('win32', 'start-bench.exe')], 'C:\\bench')
        stage.start_kestrel('')
        if not poll(Tray(stage).icon):
            raise SystemExit('the tray icon is missing')
        stage.witness.run('C:\\bench\\start-bench.exe tray')
        if not poll(lambda: len(stage.look().top(class_name='__wine_tray_icon')) == 2):
            raise SystemExit('the bare tray icon is missing')
        return private_kb('kestrel.exe'), private_kb('start-bench.exe')


def row(work, own, bare, unit, most='none set'):
    return f'| {work} | {own:.2f} {unit} | {bare:.2f} {unit} | {own / bare:.2f} | {most} |'
