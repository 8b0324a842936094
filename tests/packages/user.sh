# One step of a user's way, in a root where nothing of Orv3Cal was before.
#   user.sh install|first-result|manual|completion|documents|user-store|python|wheel|remove
cd /packages

as_user() { su tester -c "$1"; }

version() { dpkg-query -W -f '${Version}' orv3cal | sed 's/-.*//'; }

files() {
  find / -xdev \( -path /proc -o -path /sys -o -path /packages -o -path /home -o -path /tmp \
    -o -path /run -o -path /var/cache -o -path /var/log -o -path /var/lib/dpkg -o -path /var/lib/apt \
    \) -prune -o -print | sort
}

# The candidates of bash for the last of the words.
completed() {
  as_user "bash -c '
    . /usr/share/bash-completion/bash_completion
    _completion_loader orv3cal
    COMP_WORDS=(orv3cal $1) COMP_CWORD=\$((\${#COMP_WORDS[@]} - 1)) COMP_LINE=\"orv3cal $1\"
    COMP_POINT=\${#COMP_LINE} COMP_TYPE=9
    compopt() { :; }
    _orv3cal
    printf \"%s\n\" \"\${COMPREPLY[@]}\"'"
}

case $1 in
  install)
    useradd -m tester
    files >/packages/before
    apt-get -q -y install ./liborv3cal1_*.deb ./orv3cal_*.deb
    ;;
  first-result)
    as_user 'orv3cal --version' | grep -xF "orv3cal $(version)"
    as_user 'orv3cal section h 300 400 20 10 --json' | grep '"A": *15600'
    as_user 'orv3cal show 热轧普通工字钢 I20a' | grep 35.578
    cd /tmp
    as_user 'orv3cal check bolt /usr/share/doc/orv3cal/examples/bolt.json --report bolt.html'
    grep -q GB /tmp/bolt.html
    ;;
  manual)
    as_user 'man orv3cal-section' | grep -e '--dxf'
    as_user 'man orv3cal' | grep -w lattice
    zcat /usr/share/man/man1/orv3cal.1.gz | grep -F "orv3cal $(version)"
    zcat /usr/share/man/zh_CN/man1/orv3cal-section.1.gz | grep 截面
    for page in $(orv3cal --help | sed -n '/^Subcommands/,/^$/s/^  \([a-z][a-z]*\) .*/\1/p'); do
      man --warnings "orv3cal-$page" 2>&1 >/dev/null | (! grep .)
    done
    ;;
  completion)
    completed 'sho' | grep -x show
    completed 'show 热轧普通工字' | grep -x 热轧普通工字钢
    completed 'show 热轧普通工字钢 I20' | grep -x I20a
    completed 'rows 热轧普通工字钢 --columns No.,A' | grep -xF 'No.,A(cm^2)'
    completed 'section flanged' | grep -x flanged-cross
    completed 'code steel Q3' | grep -x Q355
    completed 'check b' | grep -x butt
    [ -s /usr/share/zsh/vendor-completions/_orv3cal ]
    [ -s /usr/share/fish/vendor_completions.d/orv3cal.fish ]
    ;;
  documents)
    apt-get -q -y install ./orv3cal-doc_*.deb
    cd /usr/share/doc/orv3cal-doc
    python3 /packages/check_links.py .
    grep 'Permission is hereby granted' LICENSE
    [ ! -e /packages/orv3cal.html ] || grep 'orv3cal.html](orv3cal.html)' README.md README.zh-CN.md
    apt-get -q -y purge orv3cal-doc
    ;;
  user-store)
    as_user 'orv3cal store add 自定义对称H型钢 --set No.=T --set "b(mm)=300" --set "h(mm)=400" --set "tf(mm)=20" --set "tw(mm)=10"'
    as_user 'orv3cal show 自定义对称H型钢 T' | grep 15600
    ;;
  python)
    apt-get -q -y install ./python3-orv3cal_*.deb
    as_user 'python3 -c "import orv3cal; print(orv3cal.__version__)"' | grep -xF "$(version)"
    as_user 'python3 -m pip list' | grep -x "orv3cal  *$(version)"
    as_user 'python3 /packages/frame.py /usr/share/doc/orv3cal/examples/bolts.csv orv3cal'
    apt-get -q -y purge python3-orv3cal
    ;;
  wheel)
    as_user 'python3 -m pip install -q --no-index --target /tmp/wheel /packages/orv3cal-*.whl'
    for file in KvbSystemJmDataBase.KDB KvbSystemJmDataBase.KXP; do
      cmp "/usr/share/orv3cal/$file" "/tmp/wheel/orv3cal/share/orv3cal/$file"
    done
    as_user 'PYTHONPATH=/tmp/wheel python3 /packages/frame.py /usr/share/doc/orv3cal/examples/bolts.csv'
    ;;
  remove)
    apt-get -q -y purge orv3cal liborv3cal1
    files | diff /packages/before -
    find /home/tester -name '*.KDB' | grep .
    ;;
esac
